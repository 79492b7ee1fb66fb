#include "com/Texts.h"

namespace fuzzing {
namespace {

using namespace std::string_literals;

const std::wstring kTexts[] = {
    L"",
    L"PUBLIC",
    L"0",
    L"-1",
    L"100 offline",
    L"32768",
    L"2147483648",
    L"1e400",
    L"-.5e-3",
    L"0x10",
    L"true",
    L"False",
    L"Y",
    L"2007-03-09",
    L"2007-03-09 14:05:00",
    L"9999-12-31 23:59:59",
    L"0100-01-01",
    L"25:00:00",
    L" ",
    L"  two blanks at both ends  ",
    L"\t\r\n",
    L"PA0250100",
    L"2007-000123",
    L"164120001",
    L"2299",
    L"<a>&amp;</a>",
    L"]]>",
    L"<!--",
    L"<![CDATA[",
    L"&",
    L"&#0;",
    L"</wsse:Username>",
    L"</wsse:Username></wsse:UsernameToken></wsse:Security></soap:Header><soap:Header><wsse:Security>"
    L"<wsse:UsernameToken><wsse:Username>",
    L"<soap:Body xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'><soap:Fault><faultcode>c</faultcode>"
    L"<faultstring>m</faultstring></soap:Fault></soap:Body>",
    L"<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>",
    L"soap:Body",
    L"'\"",
    L"%s%n%x",
    L"a\0b"s,
    L"\0"s,
    L"\x01\x02\x0B\x1F",
    L"\xD800",
    L"\xDC00\xD800",
    L"\xD83D\xDE00",
    L"\xFFFE\xFFFF\xFEFF",
    L"\x00DF\x0130\x0131\x01C4\xFB03",
    L"Value",
    L"_NewEnum",
};

constexpr size_t kLengths[] = {1, 5, 9, 10, 28, 29, 30, 31, 45, 46, 75, 76, 200, 201, 255, 256, 4096, 20000};

std::wstring AnyCharacters(Case& input) {
    std::wstring text(input.Below(12), L'x');
    for (wchar_t& character : text)
        character = static_cast<wchar_t>(input.OneIn(3) ? input.Bits() : ' ' + input.Below(95));
    return text;
}

}  // namespace

std::wstring AnyText(Case& input) {
    switch (input.Below(8)) {
        case 6:
            return std::wstring(input.Pick(kLengths), static_cast<wchar_t>('A' + input.Below(26)));
        case 7:
            return AnyCharacters(input);
        case 5:
            return input.Pick(kTexts) + input.Pick(kTexts);
        default:
            return input.Pick(kTexts);
    }
}

}  // namespace fuzzing
