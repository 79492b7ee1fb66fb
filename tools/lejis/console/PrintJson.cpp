#include "console/PrintJson.h"

#include "console/Console.h"

namespace lejis_client {
namespace {

void Write(const std::string& ascii) { Console::Output().Write(std::wstring(ascii.begin(), ascii.end())); }

}  // namespace

void Print(const Json& document) { Write(document.dump(2, ' ', true) + '\n'); }

void PrintLine(const Json& object) { Write(OneLine(object)); }

}  // namespace lejis_client
