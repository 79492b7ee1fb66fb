// Validation against a scripted WSDL whose schema is a file beside the test.
#include "services/SchemaUtils.h"

#include "platform/host/SuiteHost.h"
#include "platform/msxml/Document.h"
#include "support/DeepXml.h"
#include "support/Printing.h"
#include "support/TemporaryFolder.h"
#include "support/Xml.h"
#include "unit_support/PlayedWindows.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

using support::Raises;
using support::Script;
using support::ScriptedHttp;

namespace lejis {
namespace {

constexpr long kSchemaError = static_cast<long>(0x80040301);
constexpr wchar_t kWsdlUrl[] = L"http://lejis-interface/submission?wsdl";

// One element of that name, in a namespace of that name, that holds a whole number.
std::string Schema(const std::string& name) {
    return "<xsd:schema xmlns:xsd='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:" + name +
           "'><xsd:element name='" + name + "' type='xsd:int'/></xsd:schema>";
}

std::wstring Wsdl(const std::wstring& types) {
    return L"<wsdl:definitions xmlns:wsdl='http://schemas.xmlsoap.org/wsdl/' "
           L"xmlns:xsd='http://www.w3.org/2001/XMLSchema'>" +
           types + L"</wsdl:definitions>";
}

std::wstring SchemaOf(const std::wstring& targetNamespace, const std::wstring& content) {
    return L"<xsd:schema targetNamespace='" + targetNamespace + L"'>" + content + L"</xsd:schema>";
}

std::wstring Types(const std::wstring& content) {
    return L"<wsdl:types>" + SchemaOf(L"urn:count", content) + L"</wsdl:types>";
}

std::wstring Include(const std::wstring& location) { return L"<xsd:include schemaLocation='" + location + L"'/>"; }

std::wstring Including(const std::wstring& location) { return Types(Include(location)); }

msxml::Document Request(const std::wstring& payload) {
    return support::Parse(L"<soap:Envelope><soap:Body>" + payload + L"</soap:Body></soap:Envelope>");
}

class SchemaUtilsTest : public testing::Test {
protected:
    SchemaUtilsTest() : schema(folder.Write(L"count.xsd", Schema("count"))) {}

    void Validate(const std::wstring& wsdl, const std::wstring& payload) {
        http.script.responseText = wsdl;
        SchemaUtils::ValidateSchemaFromWSDL(Request(payload), kWsdlUrl);
    }

    ScriptedHttp http;
    support::TemporaryFolder folder;
    std::wstring schema;
};

TEST_F(SchemaUtilsTest, FetchesTheWsdlByGetWithoutBody) {
    EXPECT_NO_THROW(Validate(Wsdl(L""), L"<x/>"));
    EXPECT_EQ(L"GET", http.Last().Seen().method);
    EXPECT_EQ(kWsdlUrl, http.Last().Seen().url);
    EXPECT_FALSE(http.Last().Seen().bodyIsText);
    EXPECT_FALSE(http.Last().Seen().isUserGiven);
}

TEST_F(SchemaUtilsTest, YieldsOnceAfterEachLookThatFindsTheWsdlIncomplete) {
    support::TestHost host;
    http.script.readyStates = {1, 2, 4};
    EXPECT_NO_THROW(Validate(Wsdl(L""), L"<x/>"));
    EXPECT_EQ(2, host.yields);
}

// The request as it is on Windows: asynchronous, and brought on by what the host does in its yields.
class WsdlOnWindows : public SchemaUtilsTest {
protected:
    WsdlOnWindows() {
        http.script.readyStates = {1, 1, 1, 2, 3, 4};
        host.onYield = [this] { http.Last().Advance(); };
    }

    support::PlayedWindows windows;
    support::TestHost host;
};

TEST_F(WsdlOnWindows, IsFetchedWithMethodAndAddressAlone) {
    EXPECT_NO_THROW(Validate(Wsdl(L""), L"<x/>"));
    EXPECT_FALSE(http.Last().Seen().isModeGiven);
    EXPECT_EQ(1, http.Last().Seen().sends);
    EXPECT_FALSE(http.Last().HasHandler());
}

TEST_F(WsdlOnWindows, IsWaitedForByOneYieldAfterEachLookThatFindsItIncomplete) {
    EXPECT_NO_THROW(Validate(Wsdl(L""), L"<x/>"));
    EXPECT_EQ(5, host.yields);
}

TEST_F(WsdlOnWindows, IsToldByTheStatusWhenTheConnectionFails) {
    http.script.status = 12029;
    http.script.hasStatusText = false;
    EXPECT_TRUE(Raises(kSchemaError,
                       L"The LEJIS Interface is down or not accessible. Make sure the LEJIS Interface server role is "
                       L"running on your Talvex server.",
                       [&] { Validate(L"", L"<x/>"); }));
    EXPECT_EQ(5, host.yields);
}

TEST_F(WsdlOnWindows, IsGivenUpWhenTheHostsYieldRaises) {
    host.onYield = [] { throw platform::ComError(static_cast<HRESULT>(0x80042222), L"The user has cancelled."); };
    EXPECT_TRUE(Raises(static_cast<long>(0x80042222), L"The user has cancelled.", [&] { Validate(L"", L"<x/>"); }));
    EXPECT_EQ(1, http.Last().Seen().aborts);
}

// What the timers of the next test do, which get no argument.
struct Timers {
    static inline int ticks = 0;
    static inline ScriptedHttp* answered = nullptr;

    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) { ++ticks; }
    static void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD) { answered->Last().Advance(); }
};

TEST_F(WsdlOnWindows, StopsNoTimerOfTheClientWhileItIsFetched) {
    constexpr DWORD kWait = 2000;
    http.script.readyStates = {1, 4};
    host.onYield = [] { platform::host::PumpMessages(); };
    Timers::ticks = 0;
    Timers::answered = &http;
    const DWORD begin = GetTickCount();
    const UINT_PTR tick = SetTimer(nullptr, 0, 50, Timers::Tick);
    const UINT_PTR answer = SetTimer(nullptr, 0, kWait, Timers::Answer);
    EXPECT_NO_THROW(Validate(Wsdl(L""), L"<x/>"));
    const DWORD waited = GetTickCount() - begin;
    KillTimer(nullptr, tick);
    KillTimer(nullptr, answer);
    EXPECT_GE(waited, kWait - 100);
    // On a machine that has much else to do some are late.
    EXPECT_GE(Timers::ticks, 20);
    EXPECT_GE(host.yields, 20);
    RecordProperty("ticks", Timers::ticks);
    RecordProperty("yields", host.yields);
}

// Under Wine a request that is not waited for never completes when nobody listens; so the WSDL's is waited for.
TEST(WsdlUnderWine, OfAServerThatRefusesTheConnectionEndsAtOnce) {
    if (!platform::wine::IsHere())
        GTEST_SKIP() << "On Windows no fetch blocks; the tests before this one have that road.";
    support::TestHost host;
    EXPECT_TRUE(Raises(platform::kServerUnreachable, L"Error -2146697208", [] {
        SchemaUtils::ValidateSchemaFromWSDL(Request(L"<x/>"), L"http://127.0.0.1:1/submission?wsdl");
    }));
    EXPECT_EQ(0, host.yields);
}

TEST_F(SchemaUtilsTest, RaisesTheNumberOfAnInvalidAddressBeforeAnythingIsSent) {
    for (const wchar_t* url : {L"?wsdl", L"no url?wsdl", L"ftp://host/?wsdl", L"file:///C:/x?wsdl", L"http://?wsdl"}) {
        try {
            SchemaUtils::ValidateSchemaFromWSDL(Request(L"<x/>"), url);
            ADD_FAILURE() << "passed: " << support::Utf8(url);
        } catch (const platform::ComError& error) {
            EXPECT_EQ(platform::kInvalidUrl, error.Number());
        }
        EXPECT_EQ(0, http.Last().Seen().sends);
    }
}

TEST_F(SchemaUtilsTest, RaisesWithoutDocumentBeforeAnyRequest) {
    EXPECT_TRUE(Raises(kSchemaError, L"ValidateSchemaFromWSDL error: doc parameter was Nothing",
                       [] { SchemaUtils::ValidateSchemaFromWSDL(nullptr, kWsdlUrl); }));
    EXPECT_TRUE(http.requests.empty());
}

TEST_F(SchemaUtilsTest, PassesAValidPayload) {
    EXPECT_NO_THROW(Validate(Wsdl(Including(schema)), L"<c:count xmlns:c='urn:count'>12</c:count>"));
}

TEST_F(SchemaUtilsTest, RefusesAnInvalidPayload) {
    for (const wchar_t* payload : {L"<c:count xmlns:c='urn:count'>twelve</c:count>", L"<c:other xmlns:c='urn:count'/>",
                                   L"<c:count xmlns:c='urn:count'>1<b/></c:count>"}) {
        try {
            Validate(Wsdl(Including(schema)), payload);
            ADD_FAILURE() << "passed: " << support::Utf8(payload);
        } catch (const platform::ComError& error) {
            EXPECT_EQ(kSchemaError, error.Number());
            EXPECT_TRUE(error.Description().starts_with(L"Schema validation error: "));
        }
    }
}

TEST_F(SchemaUtilsTest, PassesAPayloadOfANamespaceWithoutSchema) {
    EXPECT_NO_THROW(Validate(Wsdl(Including(schema)), L"<o:other xmlns:o='urn:other'/>"));
}

TEST_F(SchemaUtilsTest, PassesEverythingWhenTheWsdlHasNoTypes) {
    EXPECT_NO_THROW(Validate(Wsdl(L""), L"<c:count xmlns:c='urn:count'>twelve</c:count>"));
}

TEST_F(SchemaUtilsTest, StillDemandsThatTheRequestParsesWhenTheWsdlHasNoTypes) {
    http.script.responseText = Wsdl(L"");
    try {
        SchemaUtils::ValidateSchemaFromWSDL(support::NewDocument(), kWsdlUrl);
        ADD_FAILURE() << "a document without a root passed";
    } catch (...) {
        const platform::ComError error = platform::CaughtError();
        EXPECT_EQ(kSchemaError, error.Number());
        EXPECT_TRUE(std::wstring_view(error.Description()).starts_with(L"Schema validation error: "));
    }
}

TEST_F(SchemaUtilsTest, AddsOnlyIncludesAndNotWhatStandsInTheWsdl) {
    const std::wstring inlined = L"<xsd:element name='count' type='xsd:date'/>";
    EXPECT_NO_THROW(Validate(Wsdl(Types(Include(schema) + inlined)), L"<c:count xmlns:c='urn:count'>12</c:count>"));
}

TEST_F(SchemaUtilsTest, AddsTheFirstIncludeOfEachSchemaOfEachTypes) {
    const std::wstring missing = folder.Path() + L"\\missing.xsd";
    const std::wstring another = folder.Write(L"another.xsd", Schema("another"));
    const std::wstring last = folder.Write(L"last.xsd", Schema("last"));
    const std::wstring wsdl = Wsdl(L"<wsdl:types>" + SchemaOf(L"urn:count", Include(schema) + Include(missing)) +
                                   SchemaOf(L"urn:another", Include(another)) + L"</wsdl:types><wsdl:types>" +
                                   SchemaOf(L"urn:last", Include(last)) + L"</wsdl:types><wsdl:message>" +
                                   SchemaOf(L"urn:deeper", Include(missing)) + L"</wsdl:message>");
    for (const std::wstring name : {L"count", L"another", L"last"}) {
        const auto validate = [&](const std::wstring& text) {
            Validate(wsdl, L"<p:" + name + L" xmlns:p='urn:" + name + L"'>" + text + L"</p:" + name + L">");
        };
        EXPECT_NO_THROW(validate(L"12"));
        EXPECT_THROW(validate(L"twelve"), platform::ComError) << support::Utf8(name);
    }
}

TEST_F(SchemaUtilsTest, RaisesForASchemaWithoutInclude) {
    EXPECT_TRUE(Raises(kSchemaError, L"A schema of the WSDL includes no schema document.",
                       [&] { Validate(Wsdl(Types(L"")), L"<x/>"); }));
}

TEST_F(SchemaUtilsTest, RaisesForASchemaWithoutTargetNamespace) {
    const std::wstring include = Include(schema);
    for (const std::wstring& types :
         {L"<xsd:schema>" + include + L"</xsd:schema>",
          L"<xsd:schema xmlns:x='urn:x' x:targetNamespace='urn:count'>" + include + L"</xsd:schema>",
          std::wstring(L"<xsd:schema/>")}) {
        EXPECT_TRUE(Raises(kSchemaError, L"A schema of the WSDL has no targetNamespace.",
                           [&] { Validate(Wsdl(L"<wsdl:types>" + types + L"</wsdl:types>"), L"<x/>"); }));
    }
}

TEST_F(SchemaUtilsTest, RaisesForASchemaThatCannotBeLoaded) {
    const std::wstring missing = folder.Path() + L"\\missing.xsd";
    try {
        Validate(Wsdl(Including(missing)), L"<x/>");
        ADD_FAILURE() << "passed";
    } catch (const platform::ComError& error) {
        EXPECT_TRUE(error.Description().starts_with(L"Cannot load the schema '" + missing + L"': "));
    }
}

TEST_F(SchemaUtilsTest, FetchesSchemasOverPlainHttpWhateverTheWsdlStates) {
    // Nobody listens on port 1; the error names the location that was asked for.
    for (const wchar_t* scheme : {L"HTTPS://", L"https://", L"Https://"}) {
        try {
            Validate(Wsdl(Including(std::wstring(scheme) + L"127.0.0.1:1/HTTPS/count.xsd")), L"<x/>");
            ADD_FAILURE() << "passed";
        } catch (const platform::ComError& error) {
            EXPECT_TRUE(
                error.Description().starts_with(L"Cannot load the schema 'http://127.0.0.1:1/HTTPS/count.xsd': "))
                << support::Utf8(error.Description());
        }
    }
}

TEST_F(SchemaUtilsTest, ReplacesEveryOccurrenceOfTheSecureScheme) {
    try {
        Validate(Wsdl(Including(L"https://127.0.0.1:1/?from=https://x/")), L"<x/>");
        ADD_FAILURE() << "passed";
    } catch (const platform::ComError& error) {
        EXPECT_TRUE(error.Description().starts_with(L"Cannot load the schema 'http://127.0.0.1:1/?from=http://x/': "));
    }
}

TEST_F(SchemaUtilsTest, RaisesForAWsdlThatIsNoXml) {
    for (const std::wstring& wsdl : {std::wstring(), std::wstring(L"no xml"), std::wstring(L"<!DOCTYPE a><a/>"),
                                     support::Nested(support::kVeryDeep)}) {
        try {
            Validate(wsdl, L"<x/>");
            ADD_FAILURE() << "passed: " << support::Utf8(wsdl.substr(0, 80));
        } catch (const platform::ComError& error) {
            EXPECT_EQ(kSchemaError, error.Number());
            EXPECT_TRUE(error.Description().starts_with(L"The WSDL could not be read: error "));
        }
    }
}

struct Refusal {
    Script script;
    std::wstring description;
};

TEST_F(SchemaUtilsTest, RaisesWhatTheServerSaysInsteadOfAWsdl) {
    const Refusal refusals[] = {
        {{.status = 404, .responseText = L"There is no such service."}, L"There is no such service."},
        {{.status = 500, .responseText = L""}, L""},
        {{.status = 12029},
         L"The LEJIS Interface is down or not accessible. Make sure the LEJIS Interface server role "
         L"is running on your Talvex server."},
        {{.status = 502, .hasStatusText = false}, L"The LEJIS server returned HTTP status code 502 (no message text)"},
    };
    for (const Refusal& refusal : refusals) {
        http.script = refusal.script;
        EXPECT_TRUE(Raises(kSchemaError, refusal.description,
                           [] { SchemaUtils::ValidateSchemaFromWSDL(Request(L"<x/>"), kWsdlUrl); }));
    }
}

}  // namespace
}  // namespace lejis
