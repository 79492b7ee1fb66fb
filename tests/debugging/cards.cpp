// Stops where gdb looks at a card.
#include "platform/TextField.h"

struct Card {
    virtual ~Card() = default;
    int number = 4711;
    platform::TextBlock texts;
    platform::TextField Make{texts};
    platform::TextField Model{texts};
    platform::TextField Color{texts};
};

void LookAt([[maybe_unused]] const Card& card) {}

int main() {
    Card card;
    card.Color = L"RED";
    card.Make = L"FORD \"T\"";
    LookAt(card);
}
