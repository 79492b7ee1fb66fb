// The WSDL over a real connection, as Wine fetches it.
#include "services/SchemaUtils.h"

#include "platform/Wine.h"
#include "support/Xml.h"
#include "unit_support/LocalListener.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace lejis {
namespace {

constexpr DWORD kDelay = 500;

// Answers one request with a WSDL, half a second late.
class SlowServer {
public:
    SlowServer() : thread_([this] { Serve(); }) {}
    ~SlowServer() {
        listener_.Close();
        thread_.join();
    }
    SlowServer(const SlowServer&) = delete;
    SlowServer& operator=(const SlowServer&) = delete;

    std::wstring Wsdl() const { return listener_.Address(L"submission?wsdl"); }

private:
    void Serve() const {
        const SOCKET client = listener_.Accept();
        if (client == INVALID_SOCKET) return;
        char buffer[2048];
        std::string head;
        for (int count = 1; count > 0 && head.find("\r\n\r\n") == std::string::npos;) {
            count = recv(client, buffer, sizeof buffer, 0);
            if (count > 0) head.append(buffer, static_cast<size_t>(count));
        }
        Sleep(kDelay);
        static constexpr std::string_view kWsdlAnswer =
            "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nConnection: close\r\nContent-Length: 68\r\n\r\n"
            "<wsdl:definitions xmlns:wsdl='http://schemas.xmlsoap.org/wsdl/'   />";
        send(client, kWsdlAnswer.data(), static_cast<int>(kWsdlAnswer.size()), 0);
        shutdown(client, SD_SEND);
        while (recv(client, buffer, sizeof buffer, 0) > 0) continue;
        closesocket(client);
    }

    support::LocalListener listener_;
    std::thread thread_;
};

int ticks = 0;

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) { ++ticks; }

TEST(WsdlOverHttp, IsFetchedUnderWineInOneBlockingCall) {
    if (!platform::wine::IsHere())
        GTEST_SKIP() << "On Windows no fetch blocks; SchemaUtilsTest has the one that yields.";
    const SlowServer server;
    support::TestHost host;
    ticks = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, 50, Tick);
    const DWORD begin = GetTickCount();
    EXPECT_NO_THROW(SchemaUtils::ValidateSchemaFromWSDL(support::Parse(L"<soap:Envelope><soap:Body/></soap:Envelope>"),
                                                        server.Wsdl()));
    EXPECT_GE(GetTickCount() - begin, kDelay - 50);
    KillTimer(nullptr, timer);
    EXPECT_EQ(0, host.yields);
    RecordProperty("ticks", ticks);
}

}  // namespace
}  // namespace lejis
