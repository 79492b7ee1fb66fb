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

Tree& AnyNode(Tree& tree, Case& one) {
    size_t position = one.Below(SizeOf(tree));
    return NodeAt(tree, position);
}

Tree& AnyElementIn(Tree& tree, Case& one) {
    Tree& node = AnyNode(tree, one);
    return node.IsElement() ? node : tree;
}

const std::wstring& AnyName(Case& one) {
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
    return one.Pick(names);
}

Tree Markup(std::wstring text) { return {{}, std::move(text), {}, {}}; }

Tree AnyMarkup(Case& one) {
    switch (one.Below(5)) {
        case 0:
            return Markup(L"<![CDATA[" + AnyText(one) + L"]]>");
        case 1:
            return Markup(L"<!--" + AnyText(one) + L"-->");
        case 2:
            return Markup(L"<?pi " + AnyText(one) + L"?>");
        case 3:
            return Markup(L"&#x" + std::to_wstring(one.Below(11000)) + L";");
        default:
            return Markup(AnyText(one));
    }
}

void Insert(Tree& parent, Tree child, Case& one) {
    const auto place = static_cast<std::ptrdiff_t>(one.Below(parent.children.size() + 1));
    parent.children.insert(parent.children.begin() + place, std::move(child));
}

void Wrap(Tree& node, size_t levels, const std::wstring& name) {
    for (; levels > 0; --levels) {
        Tree outer{name, {}, {}, {}};
        outer.children.push_back(std::move(node));
        node = std::move(outer);
    }
}

void ChangeAttributes(Tree& element, Case& one) {
    static constexpr const wchar_t* kNames[] = {L"id", L"xmlns", L"xmlns:j", L"xmlns:soap", L"xsi:nil", L"xml:space"};
    if (!element.attributes.empty() && one.OneIn(2)) {
        element.attributes.erase(element.attributes.begin() + one.Below(element.attributes.size()));
    } else {
        element.attributes.emplace_back(one.Pick(kNames), one.OneIn(3) ? L"urn:other" : AnyText(one));
    }
}

// Copies, so that a node can be put below itself.
void CopyElsewhere(Tree& tree, Case& one) {
    const Tree copy = AnyNode(tree, one);
    Tree& parent = AnyElementIn(tree, one);
    for (size_t times = one.OneIn(8) ? 30 : 1; times > 0; --times) Insert(parent, copy, one);
}

void Mutate(Tree& tree, Case& one) {
    switch (one.Below(10)) {
        case 0: {
            Tree& parent = AnyElementIn(tree, one);
            if (!parent.children.empty())
                parent.children.erase(parent.children.begin() + one.Below(parent.children.size()));
            break;
        }
        case 1:
            CopyElsewhere(tree, one);
            break;
        case 2: {
            Tree other = one.Pick(Trees());
            const Tree copy = AnyNode(other, one);
            Insert(AnyElementIn(tree, one), copy, one);
            break;
        }
        case 3:
            AnyElementIn(tree, one).name = AnyName(one);
            break;
        case 4:
            ChangeAttributes(AnyElementIn(tree, one), one);
            break;
        case 5:
            Insert(AnyElementIn(tree, one), AnyMarkup(one), one);
            break;
        case 6:
            Wrap(AnyNode(tree, one), 1 + (one.OneIn(6) ? one.Below(kDeepest) : 0), AnyName(one));
            break;
        case 7: {
            Tree& parent = AnyElementIn(tree, one);
            if (parent.children.size() > 1) std::swap(one.Pick(parent.children), one.Pick(parent.children));
            break;
        }
        default: {
            // The texts are what is read most.
            Tree& node = AnyNode(tree, one);
            if (node.IsElement()) node.children.clear();
            (node.IsElement() ? node.children.emplace_back() : node).text = Escaped(AnyText(one));
        }
    }
}

void ChangeCharacters(std::wstring& text, Case& one) {
    static constexpr const wchar_t* kPieces[] = {L"<",         L">",    L"&",      L"\"",    L"/>",    L"<a>",
                                                 L"</a>",      L"&lt;", L"]]>",    L"--",    L"&#x0;", L":",
                                                 L"xmlns='u'", L"\0",   L"\xFFFF", L"\xD800"};
    if (text.empty()) return;
    const size_t at = one.Below(text.size());
    const size_t length = std::min<size_t>(text.size() - at, 1 + one.Below(20));
    switch (one.Below(5)) {
        case 0:
            text.erase(at, length);
            break;
        case 1:
            text.insert(one.Below(text.size()), text.substr(at, length));
            break;
        case 2:
            text[at] = static_cast<wchar_t>(one.OneIn(2) ? one.Bits() : one.Below(128));
            break;
        case 3:
            text.resize(at);
            break;
        default:
            text.insert(at, one.Pick(kPieces));
    }
}

const wchar_t* AnyProlog(Case& one) {
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
    return one.OneIn(6) ? one.Pick(kPrologs) : L"";
}

std::wstring AnyOf(const std::vector<Tree>& trees, Case& one) {
    Tree tree = one.Pick(trees);
    for (uint32_t left = one.Below(6); left > 0; --left) {
        Tree changed = tree;
        Mutate(changed, one);
        if (SizeOf(changed) < kLargest && DepthOf(changed) < kDeepest) tree = std::move(changed);
    }
    std::wstring text = AnyProlog(one) + ToText(tree);
    for (uint32_t left = one.OneIn(3) ? 1 + one.Below(3) : 0; left > 0; --left) ChangeCharacters(text, one);
    return text;
}

}  // namespace

std::wstring AnyXml(Case& one) { return AnyOf(Trees(), one); }

std::wstring AnyAnswer(Case& one) { return AnyOf(Answers(), one); }

}  // namespace fuzzing
