// The WSDL over a real connection, as Wine fetches it.
#include "services/SchemaUtils.h"

#include "platform/Wine.h"
#include "support/Xml.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <winsock2.h>

#include <string>
#include <thread>

namespace lejis {
namespace {

constexpr DWORD kDelay = 500;

// Answers one request with a WSDL, half a second late.
class SlowServer {
public:
    SlowServer() {
        EXPECT_EQ(0, WSAStartup(MAKEWORD(2, 2), &startup_));
        listener_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        int size = sizeof address;
        EXPECT_EQ(0, bind(listener_, reinterpret_cast<const sockaddr*>(&address), size));
        EXPECT_EQ(0, listen(listener_, 1));
        EXPECT_EQ(0, getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size));
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { Serve(); });
    }
    ~SlowServer() {
        // Ends a wait for a client that did not come.
        closesocket(listener_);
        thread_.join();
        WSACleanup();
    }
    SlowServer(const SlowServer&) = delete;
    SlowServer& operator=(const SlowServer&) = delete;

    std::wstring Wsdl() const { return L"http://127.0.0.1:" + std::to_wstring(port_) + L"/submission?wsdl"; }

private:
    void Serve() const {
        const SOCKET client = accept(listener_, nullptr, nullptr);
        if (client == INVALID_SOCKET) return;
        char buffer[2048];
        std::string head;
        for (int count = 1; count > 0 && head.find("\r\n\r\n") == std::string::npos;) {
            count = recv(client, buffer, sizeof buffer, 0);
            if (count > 0) head.append(buffer, static_cast<size_t>(count));
        }
        Sleep(kDelay);
        static constexpr std::string_view kAnswer =
            "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nConnection: close\r\nContent-Length: 68\r\n\r\n"
            "<wsdl:definitions xmlns:wsdl='http://schemas.xmlsoap.org/wsdl/'   />";
        send(client, kAnswer.data(), static_cast<int>(kAnswer.size()), 0);
        shutdown(client, SD_SEND);
        while (recv(client, buffer, sizeof buffer, 0) > 0) continue;
        closesocket(client);
    }

    WSADATA startup_{};
    SOCKET listener_ = INVALID_SOCKET;
    u_short port_ = 0;
    std::thread thread_;
};

int ticks = 0;

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) { ++ticks; }

TEST(WsdlOverHttp, IsFetchedUnderWineInOneBlockingCall) {
    // The blocking fetch is Wine's alone: on Windows there is nothing here to look at.
    if (!platform::wine::IsHere()) GTEST_SKIP() << "this is no Wine";
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
