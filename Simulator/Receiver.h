// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Connection.h"
#include "Simulator/EventLoop.h"
#include "Simulator/Http.h"
#include "Simulator/Leaf.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace lodestar::simulator
{

/// Plays the service to which an application announces sessions and sends feedback reports. Keeps the last ones in
/// memory and shows them to anybody: GET of the receiver's address lists them, GET of "/1" below it returns the first
/// report's archive.
class Receiver
{
public:
    static constexpr int port = 12444;

    /// Listens on the address with a certificate of its own and writes that certificate into the file as PEM, because
    /// an application sends reports only to a server with a trusted certificate. Throws `std::system_error`.
    Receiver(EventLoop& loop, const std::string& address, const std::string& certificateFile);
    ~Receiver();
    Receiver(const Receiver&) = delete;
    Receiver& operator=(const Receiver&) = delete;

    /// The address to which reports are sent, "https://…".
    const std::string& url() const { return m_url; }
    /// One line for each session and each report that is kept, the oldest first.
    std::string list() const;

private:
    struct Report {
        int number = 0;
        std::string session; ///< in which the report was sent
        std::string archive;
    };

    void writeCertificate(const std::string& file) const;
    void accept();
    Response answer(const Request& request);
    Response take(const Request& request);
    Response show(const std::string& number) const;

    EventLoop& m_loop;
    std::string m_url;
    std::shared_ptr<const Leaf> m_leaf;
    ContextPtr m_context;
    int m_listener;
    EventLoop::Watch m_watch = 0;
    std::uint64_t m_lastConnection = 0;
    std::unordered_map<std::uint64_t, std::unique_ptr<Connection>> m_connections;
    std::vector<std::unique_ptr<Connection>> m_buried; ///< ended connections, until the ending call returns
    std::deque<std::string> m_sessions;                ///< the texts that announced the sessions
    std::deque<Report> m_reports;
    int m_lastReport = 0;
};

} // namespace lodestar::simulator
