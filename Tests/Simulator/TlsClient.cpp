// SPDX-License-Identifier: Apache-2.0
#include "Tests/Simulator/TlsClient.h"

#include <openssl/err.h>
#include <openssl/x509v3.h>

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <csignal>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>
#include <zlib.h>

namespace lodestar::simulator::test
{

namespace
{

std::size_t declaredSize(const Answer& answer)
{
    const std::string size = answer.header("Content-Length");
    return size.empty() ? 0 : std::stoull(size);
}

} // namespace

std::string Answer::header(std::string_view name) const
{
    for (const std::string& line : headers) {
        if (line.size() > name.size() + 1 && line[name.size()] == ':' &&
            strncasecmp(line.data(), name.data(), name.size()) == 0) {
            return line.substr(name.size() + 2);
        }
    }
    return {};
}

TlsClient::TlsClient(const std::string& address)
{
    std::signal(SIGPIPE, SIG_IGN);
    m_descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval limit{10, 0};
    setsockopt(m_descriptor, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(consolePort);
    inet_pton(AF_INET, address.c_str(), &name.sin_addr);
    if (::connect(m_descriptor, reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    } else {
        handshake();
    }
}

TlsClient::~TlsClient()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

void TlsClient::handshake()
{
    m_context.reset(SSL_CTX_new(TLS_client_method()));
    m_ssl.reset(SSL_new(m_context.get()));
    SSL_set_fd(m_ssl.get(), m_descriptor);
    m_handshaken = SSL_connect(m_ssl.get()) == 1;
}

std::string TlsClient::fingerprint() const
{
    Leaf leaf;
    leaf.certificate.reset(SSL_get1_peer_certificate(m_ssl.get()));
    return leaf.fingerprint();
}

bool TlsClient::certificateNames(const std::string& address) const
{
    return X509_check_ip_asc(SSL_get0_peer_certificate(m_ssl.get()), address.c_str(), 0) == 1;
}

void TlsClient::send(std::string_view bytes)
{
    SSL_write(m_ssl.get(), bytes.data(), static_cast<int>(bytes.size()));
}

bool TlsClient::readMore()
{
    std::array<char, 65536> bytes{};
    ERR_clear_error();
    const int count = SSL_read(m_ssl.get(), bytes.data(), static_cast<int>(bytes.size()));
    if (count > 0) {
        m_received.append(bytes.data(), static_cast<std::size_t>(count));
        return true;
    }
    const int error = SSL_get_error(m_ssl.get(), count);
    if (error == SSL_ERROR_ZERO_RETURN || error == SSL_ERROR_SSL) {
        m_end = End::Closed;
    }
    return false;
}

Answer TlsClient::receive()
{
    Answer answer;
    std::size_t headEnd = 0;
    while ((headEnd = m_received.find("\r\n\r\n", headEnd)) == std::string::npos) {
        headEnd = m_received.size() < 3 ? 0 : m_received.size() - 3;
        if (!readMore()) {
            answer.end = m_end;
            return answer;
        }
    }
    for (std::size_t start = 0; start < headEnd;) {
        const std::size_t end = m_received.find("\r\n", start);
        answer.headers.push_back(m_received.substr(start, end - start));
        start = end + 2;
    }
    answer.status = std::stoi(answer.headers.front().substr(9, 3));
    m_received.erase(0, headEnd + 4);
    const std::size_t size = declaredSize(answer);
    while (m_received.size() < size) {
        if (!readMore()) {
            answer.end = m_end;
            answer.body = std::move(m_received);
            return answer;
        }
    }
    answer.end = End::Whole;
    answer.body = m_received.substr(0, size);
    m_received.erase(0, size);
    return answer;
}

std::string getRequest(std::string_view path, std::string_view key, std::string_view more)
{
    std::string text = "GET " + std::string(path) + " HTTP/1.1\r\nHost: console\r\n";
    if (!key.empty()) {
        text += "X-API-Session: " + std::string(key) + "\r\n";
    }
    return text.append(more).append("\r\n");
}

std::string logonRequest(std::string_view user, std::string_view password)
{
    const std::string body = "<LogonRequest schemaVersion=\"V1_0\"><Metadata><Atom/></Metadata><UserID kxe=\"false\" "
                             "kb=\"CUR\">" +
                             std::string(user) + "</UserID><Password kxe=\"false\" kb=\"CUR\">" +
                             std::string(password) + "</Password></LogonRequest>";
    return "PUT /rest/api/web/Logon HTTP/1.1\r\nHost: console\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\n\r\n" + body;
}

std::string keyIn(const Answer& answer)
{
    const std::size_t element = answer.body.find("<X-API-Session");
    const std::size_t start = answer.body.find('>', element);
    return element == std::string::npos ? std::string()
                                        : answer.body.substr(start + 1, answer.body.find('<', start) - start - 1);
}

Answer get(const std::string& address, std::string_view path, std::string_view key, std::string_view more)
{
    TlsClient client(address);
    client.send(getRequest(path, key, more));
    return client.receive();
}

std::string logon(const SimulatorProcess& simulator, int console)
{
    TlsClient client(simulator.address(console));
    client.send(logonRequest(simulator.user(), simulator.password()));
    return keyIn(client.receive());
}

std::string gunzipped(const std::string& bytes)
{
    z_stream stream{};
    inflateInit2(&stream, 15 + 16);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    std::string out;
    int result = Z_OK;
    while (result == Z_OK) {
        std::array<char, 65536> part{};
        stream.next_out = reinterpret_cast<Bytef*>(part.data());
        stream.avail_out = static_cast<uInt>(part.size());
        result = inflate(&stream, Z_NO_FLUSH);
        out.append(part.data(), part.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END ? out : std::string();
}

} // namespace lodestar::simulator::test
