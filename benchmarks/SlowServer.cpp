#include "SlowServer.h"

#include "foundation/Constants.h"
#include "platform/Text.h"

#include <windows.h>

#include <stdexcept>

namespace benchmarks {
namespace {

std::string Narrow(const std::wstring& text) { return std::string(text.begin(), text.end()); }

std::string Answer() {
    using namespace lejis::Constants;
    const std::string body = Narrow(std::wstring(L"<soap:Envelope xmlns:soap='") + kSoapNamespace +
                                    L"'><soap:Body><lejis:submissionResponse xmlns:lejis='" + kLejisNamespace +
                                    L"'>0</lejis:submissionResponse></soap:Body></soap:Envelope>");
    return "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nConnection: close\r\nContent-Length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body;
}

SOCKET Listener() {
    WSADATA data;
    if (WSAStartup(MAKEWORD(2, 2), &data) != 0) throw std::runtime_error("no sockets");
    const SOCKET listener = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || listen(listener, 1) != 0) {
        throw std::runtime_error("cannot listen");
    }
    return listener;
}

}  // namespace

SlowServer::SlowServer() : listener_(Listener()), thread_([this] { Serve(); }) {}

SlowServer::~SlowServer() {
    closesocket(listener_);
    thread_.join();
    WSACleanup();
}

std::wstring SlowServer::Url() const {
    sockaddr_in address{};
    int size = sizeof address;
    getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    return L"http://127.0.0.1:" + std::to_wstring(ntohs(address.sin_port)) + L"/";
}

void SlowServer::Serve() const {
    for (;;) {
        const SOCKET client = accept(listener_, nullptr, nullptr);
        if (client == INVALID_SOCKET) return;
        char request[65536];
        recv(client, request, sizeof request, 0);
        Sleep(2000);
        const std::string answer = Answer();
        send(client, answer.data(), static_cast<int>(answer.size()), 0);
        shutdown(client, SD_SEND);
        // Until the client has closed; what is left of the request goes here too.
        while (recv(client, request, sizeof request, 0) > 0) continue;
        closesocket(client);
    }
}

}  // namespace benchmarks
