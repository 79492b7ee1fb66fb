#include "world/Documents.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fuzzing {
namespace {

std::vector<std::wstring> texts;

std::wstring ReadText(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::wstring text(bytes.size(), L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(bytes.size()), text.data(),
                                           static_cast<int>(text.size()));
    text.resize(static_cast<size_t>(length));
    return text;
}

}  // namespace

void LoadDocuments(const std::string& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".xml") paths.push_back(entry.path());
    }
    // The order decides what the choices mean.
    std::ranges::sort(paths);
    for (const auto& path : paths) {
        texts.push_back(ReadText(path));
        if (!msxml::LoadXml(msxml::CreateDocument(), texts.back()))
            throw std::runtime_error("no XML: " + path.string());
    }
    if (texts.empty()) throw std::runtime_error("no XML files in " + folder);
}

const std::vector<std::wstring>& DocumentTexts() { return texts; }

msxml::Document AnyDocument(Case& input) {
    // New each time: what is built for a document stays in its memory until its end.
    msxml::Document document = msxml::CreateDocument();
    if (input.OneIn(4)) msxml::LoadXml(document, input.Pick(texts));
    return document;
}

void PardonMeasures(const std::wstring& text, Case& input) {
    if (text.find(L"Measure") != std::wstring::npos) input.PardonLeaks();
}

msxml::Element AnyElement(Case& input) {
    const msxml::Document document = msxml::CreateDocument();
    const std::wstring& text = input.Pick(texts);
    PardonMeasures(text, input);
    msxml::LoadXml(document, text);
    return AnyElementOf(document, input);
}

msxml::Element AnyElementOf(const msxml::Document& document, Case& input) {
    msxml::Element element = msxml::Root(document);
    while (element && !input.OneIn(3)) {
        std::vector<msxml::Element> children = msxml::ChildElements(element);
        if (children.empty()) break;
        element = input.Pick(children);
    }
    return element;
}

}  // namespace fuzzing
