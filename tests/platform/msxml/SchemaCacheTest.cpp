#include "platform/msxml/SchemaCache.h"

#include "platform/com/UnknownObject.h"
#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "unit_support/PlayedWindows.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;

namespace platform::msxml {
namespace {

constexpr wchar_t kNamespace[] = L"urn:lejis-tests";

constexpr char kSchema[] =
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:lejis-tests'"
    " elementFormDefault='qualified'><xs:element name='order'><xs:complexType><xs:sequence>"
    "<xs:element name='count' type='xs:int'/></xs:sequence></xs:complexType></xs:element></xs:schema>";

std::wstring Envelope(const std::wstring& payload) {
    return L"<s:Envelope xmlns:s='http://schemas.xmlsoap.org/soap/envelope/' xmlns:t='urn:lejis-tests'><s:Body>" +
           payload + L"</s:Body></s:Envelope>";
}

class SchemaCacheFile : public testing::Test {
protected:
    void SetUp() override {
        wchar_t folder[MAX_PATH + 1];
        ASSERT_NE(0u, GetTempPathW(ARRAYSIZE(folder), folder));
        path_ = std::wstring(folder) + L"TVLejisCore schema test.xsd";
        const HANDLE file =
            CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, file);
        DWORD written = 0;
        EXPECT_TRUE(WriteFile(file, kSchema, sizeof kSchema - 1, &written, nullptr));
        CloseHandle(file);
    }
    void TearDown() override { DeleteFileW(path_.c_str()); }

    SchemaCache Loaded() const {
        SchemaCache schemas;
        schemas.Add(kNamespace, path_);
        return schemas;
    }

    std::wstring path_;
};

// On Windows the parse has the last word: what is asked once more might be refused by rules of its own.
TEST_F(SchemaCacheFile, LeavesItToTheParseWhereThatValidates) {
    const std::wstring faulty = Envelope(L"<t:order><t:count>many</t:count></t:order>");
    const SchemaCache schemas = Loaded();
    const support::PlayedWindows windows;
    EXPECT_EQ(std::nullopt, schemas.FindFault(faulty)) << "which only the look after the parse finds here";
    EXPECT_TRUE(schemas.FindFault(L"<order>").has_value());
}

// While it lives, each document that is made is MSXML's own, and kept.
class KeptDocuments final : public platform::UnknownObject<IClassFactory> {
public:
    KeptDocuments() {
        EXPECT_OK(CoGetClassObject(__uuidof(DOMDocument60), CLSCTX_INPROC_SERVER, nullptr,
                                   IID_PPV_ARGS(own_.GetAddressOf())));
        AddRef();
        EXPECT_OK(
            CoRegisterClassObject(__uuidof(DOMDocument60), this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_));
        ReleaseDocumentClass();
    }
    ~KeptDocuments() override {
        CoRevokeClassObject(cookie_);
        ReleaseDocumentClass();
    }

    std::vector<ComPtr<IXMLDOMDocument2>> documents;

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        documents.emplace_back();
        const HRESULT made = own_->CreateInstance(outer, IID_PPV_ARGS(documents.back().GetAddressOf()));
        return FAILED(made) ? made : documents.back()->QueryInterface(iid, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    ComPtr<IClassFactory> own_;
    DWORD cookie_ = 0;
};

// The platform under the tests validates nothing while it parses, so what it is asked to do is all that can be seen.
TEST_F(SchemaCacheFile, AsksTheParseToValidateAgainstTheSchemas) {
    const SchemaCache schemas = Loaded();
    KeptDocuments kept;
    schemas.FindFault(Envelope(L""));
    ASSERT_EQ(1u, kept.documents.size());
    VARIANT_BOOL validates = VARIANT_FALSE;
    VARIANT_BOOL waits = VARIANT_TRUE;
    _variant_t attached;
    EXPECT_OK(kept.documents[0]->get_validateOnParse(&validates));
    EXPECT_OK(kept.documents[0]->get_async(&waits));
    EXPECT_OK(kept.documents[0]->get_schemas(&attached));
    EXPECT_EQ(VARIANT_TRUE, validates);
    EXPECT_EQ(VARIANT_FALSE, waits);
    ComPtr<IXMLDOMSchemaCollection> collection;
    long count = 0;
    ASSERT_EQ(VT_DISPATCH, V_VT(&attached));
    ASSERT_OK(V_DISPATCH(&attached)->QueryInterface(IID_PPV_ARGS(collection.GetAddressOf())));
    EXPECT_OK(collection->get_length(&count));
    EXPECT_EQ(1, count);
}

TEST_F(SchemaCacheFile, FindsNoFaultInAValidPayload) {
    EXPECT_EQ(std::nullopt, Loaded().FindFault(Envelope(L"<t:order><t:count>1</t:count></t:order>")));
}

TEST_F(SchemaCacheFile, FindsFaultsInAPayloadOfAKnownNamespace) {
    const SchemaCache schemas = Loaded();
    for (const wchar_t* payload : {L"<t:order><t:count>many</t:count></t:order>", L"<t:order/>",
                                   L"<t:order><t:count>1</t:count><t:more/></t:order>", L"<t:undeclared/>"}) {
        EXPECT_TRUE(schemas.FindFault(Envelope(payload)).has_value()) << support::Utf8(payload);
    }
}

TEST_F(SchemaCacheFile, FindsAnErrorAfterAValidPayload) {
    EXPECT_TRUE(Loaded().FindFault(Envelope(L"<t:order><t:count>1</t:count></t:order><t:order/>")).has_value());
}

TEST_F(SchemaCacheFile, IgnoresPayloadsOfOtherNamespaces) {
    EXPECT_EQ(std::nullopt, Loaded().FindFault(Envelope(L"<order><count>many</count></order>")));
    EXPECT_EQ(std::nullopt, Loaded().FindFault(Envelope(L"")));
}

TEST_F(SchemaCacheFile, ReportsTextThatIsNotXml) {
    EXPECT_TRUE(Loaded().FindFault(L"<order>").has_value());
    EXPECT_TRUE(SchemaCache().FindFault(L"").has_value());
}

TEST(SchemaCache, FindsNoFaultWithoutSchemas) {
    EXPECT_EQ(std::nullopt, SchemaCache().FindFault(Envelope(L"<t:order/>")));
}

TEST(SchemaCache, SaysWhichSchemaItCannotLoad) {
    SchemaCache schemas;
    try {
        schemas.Add(kNamespace, L"C:\\no such folder\\missing.xsd");
        FAIL() << "nothing was raised";
    } catch (const platform::ComError& error) {
        EXPECT_TRUE(error.Description().starts_with(L"Cannot load the schema 'C:\\no such folder\\missing.xsd': "))
            << support::Utf8(error.Description());
    }
}

}  // namespace
}  // namespace platform::msxml
