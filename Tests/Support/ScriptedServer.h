// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Leaf.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <chrono>
#include <csignal>
#include <future>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace lodestar::test
{

/// A server on a loopback address that accepts one connection, reads one request and answers with the given bytes,
/// whatever they are; then it ends the connection, with or without saying so first, goes on with a byte every 50 ms or
/// says nothing more.
class ScriptedServer
{
public:
    enum class Ending { Notice, Silent, Trickle, Stall };

    using LeafRef = std::shared_ptr<const simulator::Leaf>;

    ScriptedServer(std::string answer, Ending ending, std::string address = "127.0.0.1",
                   LeafRef leaf = simulator::makeLeaf("127.0.0.1", simulator::Leaf::Kind::Valid))
        : m_answer(std::move(answer)), m_ending(ending), m_address(std::move(address)), m_leaf(std::move(leaf))
    {
        m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in where{};
        where.sin_family = AF_INET;
        where.sin_addr.s_addr = inet_addr(m_address.c_str());
        socklen_t size = sizeof where;
        EXPECT_EQ(bind(m_listener, reinterpret_cast<const sockaddr*>(&where), size), 0);
        EXPECT_EQ(listen(m_listener, 1), 0);
        EXPECT_EQ(getsockname(m_listener, reinterpret_cast<sockaddr*>(&where), &size), 0);
        m_port = ntohs(where.sin_port);
        m_thread = std::thread([this] { serve(); });
    }
    ~ScriptedServer()
    {
        shutdown(m_listener, SHUT_RDWR);
        if (m_connection >= 0) {
            shutdown(m_connection, SHUT_RDWR);
        }
        m_thread.join();
        close(m_listener);
        close(m_connection);
    }
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    /// The first piece of what the client said. Once, and it waits for it.
    std::string request() { return m_request.get_future().get(); }
    std::string url() const { return urlFor(m_address); }
    std::string urlFor(const std::string& host) const { return "https://" + host + ":" + std::to_string(m_port) + "/"; }

private:
    void serve()
    {
        const int connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        m_connection = connection;
        if (connection < 0) {
            return;
        }
        const simulator::ContextPtr context = simulator::makeServerContext();
        SSL_CTX_use_certificate(context.get(), m_leaf->certificate.get());
        SSL_CTX_use_PrivateKey(context.get(), m_leaf->key.get());
        const simulator::SslPtr ssl(SSL_new(context.get()));
        SSL_set_fd(ssl.get(), connection);
        std::string request(4096, '\0');
        int count = 0;
        if (SSL_accept(ssl.get()) == 1 &&
            (count = SSL_read(ssl.get(), request.data(), static_cast<int>(request.size()))) > 0) {
            m_request.set_value(request.substr(0, static_cast<std::size_t>(count)));
            SSL_write(ssl.get(), m_answer.data(), static_cast<int>(m_answer.size()));
            std::signal(SIGPIPE, SIG_IGN); // the client leaves first
            while (m_ending == Ending::Trickle && SSL_write(ssl.get(), "x", 1) == 1) {
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
            }
            if (m_ending == Ending::Notice) {
                SSL_shutdown(ssl.get());
            }
        }
        if (m_ending != Ending::Stall) {
            shutdown(connection, SHUT_WR);
        }
        // What the client still says is read, since unread bytes would turn the end into a reset.
        while (read(connection, request.data(), request.size()) > 0) {
        }
    }

    const std::string m_answer;
    const Ending m_ending;
    const std::string m_address;
    const LeafRef m_leaf;
    int m_listener = -1;
    int m_port = 0;
    std::atomic<int> m_connection = -1;
    std::promise<std::string> m_request;
    std::thread m_thread;
};

} // namespace lodestar::test
