// hold-desktop.exe: stays until Wine ends. As long as a program with a message queue is there, Wine keeps its desktop;
// otherwise the desktop ends one second after the last such program, and the next one waits for a new desktop.

#include <windows.h>

int main() {
    GetDesktopWindow();
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}
