// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Leaf.h"
#include "Simulator/SimulatorProcess.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator::test
{

/// How the bytes of an answer ended.
enum class End { Whole, Closed, Nothing };

struct Answer {
    int status = 0;
    std::vector<std::string> headers;
    /// As received, still compressed.
    std::string body;
    End end = End::Nothing;
    std::string header(std::string_view name) const;
};

/// A client that sees every byte: one connection, no checks, no help.
class TlsClient
{
public:
    explicit TlsClient(const std::string& address);
    ~TlsClient();
    TlsClient(const TlsClient&) = delete;
    TlsClient& operator=(const TlsClient&) = delete;

    bool handshaken() const { return m_handshaken; }
    /// SHA-256 of the server's certificate; whether it names the address.
    std::string fingerprint() const;
    bool certificateNames(const std::string& address) const;

    void send(std::string_view bytes);
    /// The next answer.
    Answer receive();

private:
    void handshake();
    bool readMore();

    int m_descriptor = -1;
    ContextPtr m_context;
    SslPtr m_ssl;
    bool m_handshaken = false;
    std::string m_received;
    End m_end = End::Nothing;
};

/// The request line and headers of a GET with a session key; `more` are further header lines, each with its line end.
std::string getRequest(std::string_view path, std::string_view key, std::string_view more = {});
/// A logon as a client sends it.
std::string logonRequest(std::string_view user, std::string_view password);
/// The key of a logon's answer; empty when it holds none.
std::string keyIn(const Answer& answer);

/// One GET on a connection of its own.
Answer get(const std::string& address, std::string_view path, std::string_view key, std::string_view more = {});
/// A logon with the simulator's credentials on a connection of its own.
std::string logon(const SimulatorProcess& simulator, int console = 0);
std::string gunzipped(const std::string& bytes);

} // namespace lodestar::simulator::test
