// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Listener.h"

#include "CommandLine/Failure.h"
#include "CommandLine/Texts.h"
#include "Platform/PrivateFile.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/URLLoading/URLRequest.h"

#include <fmt/format.h>

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <map>
#include <microhttpd.h>
#include <mutex>
#include <netinet/in.h>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace lodestar
{
namespace
{

using Texts::say;

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto longestConnection = 5s;
constexpr auto connectionCheck = 500ms;
constexpr std::size_t connectionMemory = std::size_t{16} * 1024; // holds a request's head
constexpr std::string_view contentType = "application/openmetrics-text; version=1.0.0; charset=utf-8";

/// An address as the system's calls take it.
struct SocketAddress {
    sockaddr_storage storage{};
    socklen_t size = 0;

    explicit SocketAddress(const ListenAddress& address)
    {
        auto* const v4 = reinterpret_cast<sockaddr_in*>(&storage);
        auto* const v6 = reinterpret_cast<sockaddr_in6*>(&storage);
        if (::inet_pton(AF_INET, address.host.c_str(), &v4->sin_addr) == 1) {
            v4->sin_family = AF_INET;
            v4->sin_port = htons(address.port);
            size = sizeof *v4;
        } else if (::inet_pton(AF_INET6, address.host.c_str(), &v6->sin6_addr) == 1) {
            v6->sin6_family = AF_INET6;
            v6->sin6_port = htons(address.port);
            size = sizeof *v6;
        }
    }

    bool isAddress() const { return size > 0; }
    bool isLoopback() const
    {
        constexpr std::uint32_t loopbackNet = 127;
        return storage.ss_family == AF_INET
                   ? ntohl(reinterpret_cast<const sockaddr_in*>(&storage)->sin_addr.s_addr) >> 24U == loopbackNet
                   : IN6_IS_ADDR_LOOPBACK(&reinterpret_cast<const sockaddr_in6*>(&storage)->sin6_addr);
    }
    sockaddr* get() { return reinterpret_cast<sockaddr*>(&storage); }
};

/// A socket that listens, or -1 with `errno`; `address` gets the port.
int openSocket(ListenAddress& address)
{
    SocketAddress socketAddress(address);
    const int descriptor = ::socket(socketAddress.storage.ss_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    constexpr int yes = 1;
    ::setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    if (::bind(descriptor, socketAddress.get(), socketAddress.size) != 0 || ::listen(descriptor, SOMAXCONN) != 0 ||
        ::getsockname(descriptor, socketAddress.get(), &socketAddress.size) != 0) {
        const int error = errno;
        ::close(descriptor);
        errno = error;
        return -1;
    }
    // The port stands at the same place in both kinds of address.
    address.port = ntohs(reinterpret_cast<const sockaddr_in*>(&socketAddress.storage)->sin_port);
    return descriptor;
}

/// Answers with the response, and lets go of it. Each connection ends with its answer, so that its time is bounded.
MHD_Result answer(MHD_Connection* connection, unsigned status, MHD_Response* response)
{
    MHD_add_response_header(response, MHD_HTTP_HEADER_CONNECTION, "close");
    const MHD_Result result = MHD_queue_response(connection, status, response);
    MHD_destroy_response(response);
    return result;
}

/// A literal's text.
MHD_Response* plainResponse(std::string_view text)
{
    MHD_Response* const response =
        MHD_create_response_from_buffer(text.size(), const_cast<char*>(text.data()), MHD_RESPMEM_PERSISTENT);
    MHD_add_response_header(response, MHD_HTTP_HEADER_CONTENT_TYPE, "text/plain; charset=utf-8");
    return response;
}

MHD_Response* metricsResponse(std::shared_ptr<const std::string> text)
{
    using Kept = std::shared_ptr<const std::string>;
    auto* const kept = new Kept(std::move(text));
    MHD_Response* const response = MHD_create_response_from_buffer_with_free_callback_cls(
        (*kept)->size(), const_cast<char*>((*kept)->data()), [](void* closure) { delete static_cast<Kept*>(closure); },
        kept);
    MHD_add_response_header(response, MHD_HTTP_HEADER_CONTENT_TYPE, contentType.data());
    return response;
}

/// Whether a request's Host names this machine, on any port: it may have come through a tunnel. A page of the web that
/// had its own name lead here would name itself. Who sends no Host is no browser.
bool isOwnHost(const char* header)
{
    if (header == nullptr) {
        return true;
    }
    const std::string_view text(header);
    const bool isBracketed = text.starts_with('[');
    const std::size_t end = isBracketed ? text.find(']') : std::min(text.find(':'), text.size());
    if (end == std::string_view::npos) {
        return false;
    }
    std::string host(isBracketed ? text.substr(1, end - 1) : text.substr(0, end));
    std::ranges::transform(host, host.begin(), lowered);
    const SocketAddress address({.host = host});
    return host == "localhost" || (address.isAddress() && address.isLoopback());
}

} // namespace

Result<ListenAddress> ListenAddress::of(const std::string& text)
{
    ListenAddress address;
    const std::size_t colon = text.rfind(':');
    const std::string port = colon == std::string::npos ? text : text.substr(colon + 1);
    const auto [end, error] = std::from_chars(port.data(), port.data() + port.size(), address.port);
    if (error != std::errc() || end != port.data() + port.size()) {
        return misuse(say(
            TEXT("CommandLine", "--listen takes a port, or an address and a port as 127.0.0.1:9750, not %1."), {text}));
    }
    if (colon != std::string::npos) {
        const std::string host = text.substr(0, colon);
        const bool isBracketed = host.starts_with('[') && host.ends_with(']');
        address.host = isBracketed ? host.substr(1, host.size() - 2) : host == "localhost" ? address.host : host;
    }
    const SocketAddress known(address);
    if (!known.isAddress()) {
        return misuse(say(TEXT("CommandLine", "--listen takes an address in numbers, not %1."), {address.host}));
    }
    if (!known.isLoopback()) {
        return misuse(say(TEXT("CommandLine",
                               "--listen takes no address that other machines reach, such as %1: what it serves is "
                               "neither encrypted nor guarded. Put a server in front of it that is."),
                          {address.host}));
    }
    return address;
}

std::string ListenAddress::text() const
{
    const bool isV6 = host.find(':') != std::string::npos;
    return isV6 ? fmt::format("[{}]:{}", host, port) : fmt::format("{}:{}", host, port);
}

/// What the two threads share. The library calls on its thread; it closes a connection's socket after it has told so.
struct Listener::State : std::enable_shared_from_this<Listener::State> {
    struct Connection {
        int descriptor = -1;
        Clock::time_point since;
    };

    explicit State(Text served) : text(std::move(served)) {}

    static MHD_Result didReceive(void* closure, MHD_Connection* connection, const char* url, const char* method,
                                 const char* /*version*/, const char* /*body*/, std::size_t* /*bodySize*/,
                                 void** /*context*/)
    {
        if (!isOwnHost(MHD_lookup_connection_value(connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_HOST))) {
            return answer(connection, MHD_HTTP_MISDIRECTED_REQUEST,
                          plainResponse("This is for requests to localhost or an address such as 127.0.0.1.\n"));
        }
        if (std::string_view(url) != "/metrics") {
            return answer(connection, MHD_HTTP_NOT_FOUND, plainResponse("There is only /metrics here.\n"));
        }
        if (std::string_view(method) != MHD_HTTP_METHOD_GET && std::string_view(method) != MHD_HTTP_METHOD_HEAD) {
            MHD_Response* const response = plainResponse("Only GET and HEAD.\n");
            MHD_add_response_header(response, MHD_HTTP_HEADER_ALLOW, "GET, HEAD");
            return answer(connection, MHD_HTTP_METHOD_NOT_ALLOWED, response);
        }
        auto text = static_cast<State*>(closure)->text();
        return text == nullptr ? answer(connection, MHD_HTTP_SERVICE_UNAVAILABLE,
                                        plainResponse("The first reading has not ended yet.\n"))
                               : answer(connection, MHD_HTTP_OK, metricsResponse(std::move(text)));
    }

    static void didChange(void* closure, MHD_Connection* connection, void** /*context*/,
                          MHD_ConnectionNotificationCode code)
    {
        auto& state = *static_cast<State*>(closure);
        const std::lock_guard lock(state.mutex);
        if (code == MHD_CONNECTION_NOTIFY_STARTED) {
            const auto* const info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD);
            state.connections[connection] = {info->connect_fd, Clock::now()};
        } else {
            state.connections.erase(connection);
        }
    }

    /// The library's own time-out begins anew with each byte, so that a client could hold its place for ever.
    void cutSlow()
    {
        {
            const std::lock_guard lock(mutex);
            for (const auto& [connection, each] : connections) {
                if (Clock::now() - each.since > longestConnection) {
                    ::shutdown(each.descriptor, SHUT_RDWR);
                }
            }
        }
        MainQueue::shared().asyncAfter(connectionCheck, [weak = weak_from_this()] {
            if (const auto state = weak.lock()) {
                state->cutSlow();
            }
        });
    }

    const Text text;
    MHD_Daemon* daemon = nullptr;
    std::mutex mutex;
    std::map<MHD_Connection*, Connection> connections;
};

Listener::Listener(ListenAddress address, std::shared_ptr<State> state)
    : m_address(std::move(address)), m_state(std::move(state))
{
}

Listener::~Listener()
{
    MHD_stop_daemon(m_state->daemon); // ends the thread and closes the sockets
}

Result<std::unique_ptr<Listener>> Listener::open(const ListenAddress& asked, Text text)
{
    const std::string attempt = say(TEXT("CommandLine", "Cannot listen on %1"), {asked.text()});
    ListenAddress address = asked;
    const int descriptor = openSocket(address);
    if (descriptor < 0) {
        return failure(shownDescription(fileError(attempt, errno)));
    }
    const auto state = std::make_shared<State>(std::move(text));
    const bool isV6 = address.host.find(':') != std::string::npos;
    state->daemon = MHD_start_daemon(MHD_USE_AUTO_INTERNAL_THREAD | (isV6 ? MHD_USE_IPv6 : MHD_NO_FLAG), 0, nullptr,
                                     nullptr, &State::didReceive, state.get(), MHD_OPTION_LISTEN_SOCKET, descriptor,
                                     MHD_OPTION_CONNECTION_LIMIT, mostConnections, MHD_OPTION_CONNECTION_MEMORY_LIMIT,
                                     connectionMemory, MHD_OPTION_NOTIFY_CONNECTION, &State::didChange, state.get(),
                                     MHD_OPTION_END);
    if (state->daemon == nullptr) {
        ::close(descriptor);
        return failure(attempt + ".");
    }
    state->cutSlow();
    return std::unique_ptr<Listener>(new Listener(address, state));
}

} // namespace lodestar
