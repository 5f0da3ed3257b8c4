// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Receiver.h"

#include "Simulator/Listening.h"

#include <openssl/pem.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <sys/epoll.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodestar::simulator
{

namespace
{

constexpr std::string_view path = "/reports";
constexpr std::size_t mostKept = 16;

Response textAnswer(int status, std::string text)
{
    Response response;
    response.status = status;
    response.headers.emplace_back("Content-Type", "text/plain; charset=utf-8");
    response.body = makeBody(std::move(text));
    return response;
}

template <typename Kept>
void keep(std::deque<Kept>& list, Kept added)
{
    if (list.size() == mostKept) {
        list.pop_front();
    }
    list.push_back(std::move(added));
}

/// Makes one line of a stranger's text, without control characters.
std::string onOneLine(std::string text)
{
    std::ranges::replace_if(
        text, [](char c) { return c < ' ' || c == 0x7F; }, ' ');
    return text;
}

} // namespace

Receiver::Receiver(EventLoop& loop, const std::string& address, const std::string& certificateFile)
    : m_loop(loop),
      m_url("https://" + address + ":" + std::to_string(port) + std::string(path)),
      m_leaf(makeLeaf(address, Leaf::Kind::Valid)),
      m_context(makeServerContext())
{
    writeCertificate(certificateFile);
    m_listener = listeningSocket(address, port);
    m_watch = m_loop.watch(m_listener, EPOLLIN, [this](std::uint32_t) { accept(); });
}

Receiver::~Receiver()
{
    m_loop.forget(m_watch);
    ::close(m_listener);
}

void Receiver::writeCertificate(const std::string& file) const
{
    std::FILE* const out = std::fopen(file.c_str(), "w");
    const bool written = out != nullptr && PEM_write_X509(out, m_leaf->certificate.get()) == 1;
    const bool closed = out != nullptr && std::fclose(out) == 0;
    if (!written || !closed) {
        throw std::system_error(errno, std::generic_category(), file);
    }
}

void Receiver::accept()
{
    m_buried.clear();
    for (int descriptor = 0; (descriptor = acceptedSocket(m_listener)) >= 0;) {
        SslPtr ssl(SSL_new(m_context.get()));
        SSL_use_certificate(ssl.get(), m_leaf->certificate.get());
        SSL_use_PrivateKey(ssl.get(), m_leaf->key.get());
        const std::uint64_t number = ++m_lastConnection;
        Connection::Callbacks callbacks;
        callbacks.answer = [this](const Request& request) { return answer(request); };
        callbacks.handshaken = [] {};
        callbacks.closed = [this, number] {
            if (auto node = m_connections.extract(number)) {
                m_buried.push_back(std::move(node.mapped()));
            }
        };
        m_connections.emplace(number,
                              std::make_unique<Connection>(m_loop, descriptor, std::move(ssl), std::move(callbacks)));
    }
}

Response Receiver::answer(const Request& request)
{
    const std::string target = request.resource();
    if (target == path && request.method == "POST") {
        return take(request);
    }
    if (target == std::string(path) + "/sessions" && request.method == "POST") {
        keep(m_sessions, request.body.substr(0, 1000));
        return textAnswer(201, {});
    }
    if (target == path && request.method == "GET") {
        return textAnswer(200, list());
    }
    if (target.starts_with(std::string(path) + "/") && request.method == "GET") {
        return show(target.substr(path.size() + 1));
    }
    return textAnswer(404, {});
}

Response Receiver::take(const Request& request)
{
    if (!request.body.starts_with("PK")) {
        return textAnswer(400, "A report is an archive.\n");
    }
    keep(m_reports, {++m_lastReport, request.header("X-Feedback-Session").value_or(""), request.body});
    return textAnswer(201, {});
}

Response Receiver::show(const std::string& number) const
{
    const auto report =
        std::ranges::find_if(m_reports, [&](const Report& each) { return std::to_string(each.number) == number; });
    if (report == m_reports.end()) {
        return textAnswer(404, {});
    }
    Response response;
    response.headers.emplace_back("Content-Type", "application/zip");
    response.body = makeBody(report->archive);
    return response;
}

std::string Receiver::list() const
{
    std::string lines;
    for (const std::string& session : m_sessions) {
        lines += "session " + onOneLine(session) + "\n";
    }
    for (const Report& report : m_reports) {
        lines += "report " + std::to_string(report.number) + ", " + std::to_string(report.archive.size()) +
                 " bytes, sent in session " + onOneLine(report.session) + "\n";
    }
    return lines;
}

} // namespace lodestar::simulator
