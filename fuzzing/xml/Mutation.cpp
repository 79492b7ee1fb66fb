#include "xml/Mutation.h"

#include "com/Texts.h"
#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "world/Answers.h"
#include "world/Documents.h"
#include "xml/Tree.h"

#include <algorithm>

namespace fuzzing {
namespace {

constexpr size_t kLargest = 2000;
// Beyond what parsers take, which is some 256.
constexpr size_t kDeepest = 300;

Tree Parsed(const std::wstring& text) {
    const msxml::Document document = msxml::CreateDocument();
    msxml::LoadXml(document, text);
    return ToTree(document);
}

const std::vector<Tree>& Trees() {
    static const std::vector<Tree> trees = [] {
        std::vector<Tree> made;
        for (const std::wstring& text : DocumentTexts()) made.push_back(Parsed(text));
        return made;
    }();
    return trees;
}

// Not every MSXML tells declarations among the attributes, and an answer without them holds nothing that is read.
Tree WithDeclarations(Tree root) {
    std::erase_if(root.attributes, [](const auto& attribute) { return attribute.first.starts_with(L"xmlns"); });
    for (const auto& prefix : lejis::Constants::kPrefixes) {
        root.attributes.emplace_back(L"xmlns:" + std::wstring(prefix.name), prefix.uri);
    }
    return root;
}

const std::vector<Tree>& Answers() {
    static const std::vector<Tree> trees = [] {
        std::vector<Tree> made;
        for (const std::wstring& text : AnswerTexts()) made.push_back(WithDeclarations(Parsed(text)));
        return made;
    }();
    return trees;
}

Tree& NodeAt(Tree& tree, size_t& position) {
    if (position == 0) return tree;
    for (Tree& child : tree.children) {
        const size_t size = SizeOf(child);
        if (position <= size) return NodeAt(child, --position);
        position -= size;
    }
    return tree;
}

Tree& AnyNode(Tree& tree, Case& input) {
    size_t position = input.Below(SizeOf(tree));
    return NodeAt(tree, position);
}

Tree& AnyElementIn(Tree& tree, Case& input) {
    Tree& node = AnyNode(tree, input);
    return node.IsElement() ? node : tree;
}

const std::wstring& AnyName(Case& input) {
    static const std::vector<std::wstring> names = [] {
        std::vector<std::wstring> found = {L"a", L"soap:Body", L"Body", L"x:y", L"xml:id"};
        const auto collect = [&](const auto& self, const Tree& tree) -> void {
            if (tree.IsElement()) found.push_back(tree.name);
            for (const Tree& child : tree.children) self(self, child);
        };
        for (const Tree& tree : Trees()) collect(collect, tree);
        std::ranges::sort(found);
        found.erase(std::unique(found.begin(), found.end()), found.end());
        return found;
    }();
    return input.Pick(names);
}

Tree Markup(std::wstring text) { return {{}, std::move(text), {}, {}}; }

Tree AnyMarkup(Case& input) {
    switch (input.Below(5)) {
        case 0:
            return Markup(L"<![CDATA[" + AnyText(input) + L"]]>");
        case 1:
            return Markup(L"<!--" + AnyText(input) + L"-->");
        case 2:
            return Markup(L"<?pi " + AnyText(input) + L"?>");
        case 3:
            return Markup(L"&#x" + std::to_wstring(input.Below(11000)) + L";");
        default:
            return Markup(AnyText(input));
    }
}

void Insert(Tree& parent, Tree child, Case& input) {
    const auto place = static_cast<std::ptrdiff_t>(input.Below(parent.children.size() + 1));
    parent.children.insert(parent.children.begin() + place, std::move(child));
}

void Wrap(Tree& node, size_t levels, const std::wstring& name) {
    for (; levels > 0; --levels) {
        Tree outer{name, {}, {}, {}};
        outer.children.push_back(std::move(node));
        node = std::move(outer);
    }
}

void ChangeAttributes(Tree& element, Case& input) {
    static constexpr const wchar_t* kNames[] = {L"id", L"xmlns", L"xmlns:j", L"xmlns:soap", L"xsi:nil", L"xml:space"};
    if (!element.attributes.empty() && input.OneIn(2)) {
        element.attributes.erase(element.attributes.begin() + input.Below(element.attributes.size()));
    } else {
        element.attributes.emplace_back(input.Pick(kNames), input.OneIn(3) ? L"urn:other" : AnyText(input));
    }
}

// Copies, so that a node can be put below itself.
void CopyElsewhere(Tree& tree, Case& input) {
    const Tree copy = AnyNode(tree, input);
    Tree& parent = AnyElementIn(tree, input);
    for (size_t times = input.OneIn(8) ? 30 : 1; times > 0; --times) Insert(parent, copy, input);
}

void Mutate(Tree& tree, Case& input) {
    switch (input.Below(10)) {
        case 0: {
            Tree& parent = AnyElementIn(tree, input);
            if (!parent.children.empty())
                parent.children.erase(parent.children.begin() + input.Below(parent.children.size()));
            break;
        }
        case 1:
            CopyElsewhere(tree, input);
            break;
        case 2: {
            Tree other = input.Pick(Trees());
            const Tree copy = AnyNode(other, input);
            Insert(AnyElementIn(tree, input), copy, input);
            break;
        }
        case 3:
            AnyElementIn(tree, input).name = AnyName(input);
            break;
        case 4:
            ChangeAttributes(AnyElementIn(tree, input), input);
            break;
        case 5:
            Insert(AnyElementIn(tree, input), AnyMarkup(input), input);
            break;
        case 6:
            Wrap(AnyNode(tree, input), 1 + (input.OneIn(6) ? input.Below(kDeepest) : 0), AnyName(input));
            break;
        case 7: {
            Tree& parent = AnyElementIn(tree, input);
            if (parent.children.size() > 1) std::swap(input.Pick(parent.children), input.Pick(parent.children));
            break;
        }
        default: {
            // The texts are what is read most.
            Tree& node = AnyNode(tree, input);
            if (node.IsElement()) node.children.clear();
            (node.IsElement() ? node.children.emplace_back() : node).text = Escaped(AnyText(input));
        }
    }
}

void ChangeCharacters(std::wstring& text, Case& input) {
    static constexpr const wchar_t* kPieces[] = {L"<",         L">",    L"&",      L"\"",    L"/>",    L"<a>",
                                                 L"</a>",      L"&lt;", L"]]>",    L"--",    L"&#x0;", L":",
                                                 L"xmlns='u'", L"\0",   L"\xFFFF", L"\xD800"};
    if (text.empty()) return;
    const size_t at = input.Below(text.size());
    const size_t length = std::min<size_t>(text.size() - at, 1 + input.Below(20));
    switch (input.Below(5)) {
        case 0:
            text.erase(at, length);
            break;
        case 1:
            text.insert(input.Below(text.size()), text.substr(at, length));
            break;
        case 2:
            text[at] = static_cast<wchar_t>(input.OneIn(2) ? input.Bits() : input.Below(128));
            break;
        case 3:
            text.resize(at);
            break;
        default:
            text.insert(at, input.Pick(kPieces));
    }
}

const wchar_t* AnyProlog(Case& input) {
    static constexpr const wchar_t* kPrologs[] = {
        L"<?xml version='1.0'?>",
        L"<?xml version='1.0' encoding='UTF-8' standalone='yes'?>",
        L"<?xml version='1.1'?>",
        L"<!DOCTYPE a>",
        L"<!DOCTYPE a [<!ENTITY e 'expanded'><!ENTITY x SYSTEM 'file:///c:/windows/win.ini'>]>",
        L"<!DOCTYPE a [<!ATTLIST a b CDATA 'c'>]>",
        L"\xFEFF",
        L" \r\n<!-- -->",
    };
    return input.OneIn(6) ? input.Pick(kPrologs) : L"";
}

std::wstring AnyOf(const std::vector<Tree>& trees, Case& input) {
    Tree tree = input.Pick(trees);
    for (uint32_t left = input.Below(6); left > 0; --left) {
        Tree changed = tree;
        Mutate(changed, input);
        if (SizeOf(changed) < kLargest && DepthOf(changed) < kDeepest) tree = std::move(changed);
    }
    std::wstring text = AnyProlog(input) + ToText(tree);
    for (uint32_t left = input.OneIn(3) ? 1 + input.Below(3) : 0; left > 0; --left) ChangeCharacters(text, input);
    return text;
}

}  // namespace

std::wstring AnyXml(Case& input) { return AnyOf(Trees(), input); }

std::wstring AnyAnswer(Case& input) { return AnyOf(Answers(), input); }

}  // namespace fuzzing
