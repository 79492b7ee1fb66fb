// One of the program's two outputs: a console, or a file or pipe that gets UTF-8.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace lejis_client {

// What a text is about; a console shows it as a colour.
enum class Tone { kPlain, kGood, kBad, kDoubtful };

class Console {
public:
    static const Console& Output();
    static const Console& Errors();

    bool IsInteractive() const { return interactive_; }
    // Lines end with a line feed in text, whatever they end with outside.
    void Write(std::wstring_view text) const;
    // The text as it is, for a program that takes line feeds alone.
    void WriteAsItIs(std::wstring_view text) const;
    // Coloured where that can be seen and the environment's NO_COLOR does not forbid it.
    void Write(std::wstring_view text, Tone tone) const;

private:
    explicit Console(DWORD standardHandle);

    HANDLE handle_;
    bool interactive_;
    bool coloured_;
};

}  // namespace lejis_client
