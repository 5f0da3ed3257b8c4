// SPDX-License-Identifier: Apache-2.0
#include "Simulator/StoryTeller.h"

#include "Simulator/Simulator.h"

#include <array>
#include <cerrno>
#include <sys/epoll.h>
#include <sys/timerfd.h>
#include <system_error>
#include <unistd.h>

namespace lodestar::simulator
{

namespace
{

int makeTimer()
{
    const int timer = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    if (timer < 0) {
        throw std::system_error(errno, std::generic_category(), "timerfd_create");
    }
    return timer;
}

std::string told(const Deed& deed)
{
    std::string text = "story " + std::to_string(deed.at.count()) + " ";
    text += deed.console ? std::to_string(*deed.console) : "all";
    text += " " + deed.kind + (deed.object.empty() ? "" : " " + encodeWord(deed.object));
    for (const std::string& act : deed.acts) {
        text += " " + act;
    }
    for (const auto& [key, value] : deed.values) {
        text += " " + key + "=" + encodeWord(value);
    }
    return text;
}

} // namespace

StoryTeller::StoryTeller(EventLoop& loop, Simulator& simulator)
    : m_loop(loop),
      m_simulator(simulator),
      m_story(Story::read(simulator.settings().story)),
      m_epoch(static_cast<std::int64_t>(simulator.settings().storyEpoch)),
      m_offset(std::chrono::seconds(simulator.settings().storyAt)),
      m_timer(makeTimer()),
      m_watch(loop.watch(m_timer, EPOLLIN, [this](std::uint32_t) { catchUp(); }))
{
    if (m_epoch == 0) {
        m_epoch = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()) - simulator.settings().storyAt;
    }
    std::vector<const Inventory*> inventories;
    inventories.reserve(static_cast<std::size_t>(simulator.consoleCount()));
    for (int i = 0; i < simulator.consoleCount(); ++i) {
        inventories.push_back(&simulator.inventory(i));
    }
    m_story.check(inventories);
    catchUp();
}

StoryTeller::~StoryTeller()
{
    m_loop.forget(m_watch);
    ::close(m_timer);
}

EventLoop::Clock::duration StoryTeller::clock() const
{
    return m_simulator.settings().storyStill ? m_offset : EventLoop::Clock::now() - m_start + m_offset;
}

void StoryTeller::advance(std::chrono::seconds by)
{
    m_offset += by;
    if (m_simulator.settings().storyEpoch == 0) {
        // What happens ahead of its time happens now, and not in the future.
        m_epoch -= by.count();
    }
    catchUp();
}

void StoryTeller::catchUp()
{
    std::uint64_t expirations = 0;
    [[maybe_unused]] const auto read = ::read(m_timer, &expirations, sizeof expirations);
    const auto now = clock();
    for (; m_next < m_story.deeds().size() && m_story.deeds()[m_next].at <= now; ++m_next) {
        perform(m_story.deeds()[m_next]);
    }
    if (m_next == m_story.deeds().size() || m_simulator.settings().storyStill) {
        return;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_story.deeds()[m_next].at - now);
    const itimerspec due{{}, {left.count() / 1000, left.count() % 1000 * 1000000}};
    timerfd_settime(m_timer, 0, &due, nullptr);
}

void StoryTeller::perform(const Deed& deed)
{
    const int first = deed.console.value_or(0);
    const int count = deed.console ? 1 : m_simulator.consoleCount();
    for (int i = first; i < first + count; ++i) {
        performOn(i, deed);
    }
    if (m_narrator) {
        m_narrator(told(deed));
    }
}

void StoryTeller::performOn(int console, const Deed& deed)
{
    if (deed.changesInventory()) {
        m_simulator.changeInventory(console,
                                    [&](Inventory& inventory) { change(inventory, deed, m_epoch + deed.at.count()); });
    }
    if (deed.kind == "console") {
        strikeConsole(console, deed);
    } else if (deed.kind == "certificate") {
        changeCertificate(console, deed);
    } else if (deed.kind == "feed") {
        clearFault(console, "refuseFeed:" + deed.object);
        if (deed.is("missing")) {
            setFault(console, "refuseFeed=" + deed.value("status").value_or("500") + ":" + deed.object);
        }
    } else if (deed.kind == "fault") {
        clearFault(console, deed.object);
        if (deed.is("on")) {
            setFault(console, deed.object);
        }
    }
}

void StoryTeller::strikeConsole(int console, const Deed& deed)
{
    if (deed.is("back")) {
        for (const char* fault : {"silentAfterAccept", "closePort", "refuseFeed:All", "refuseLogon"}) {
            clearFault(console, fault);
        }
    }
    if (deed.is("silent")) {
        setFault(console, "silentAfterAccept");
        m_simulator.closeConnections(console);
    }
    if (deed.is("refuses")) {
        setFault(console, "closePort");
    }
    if (const auto status = deed.value("answers")) {
        setFault(console, "refuseFeed=" + *status + ":All");
    }
    if (const auto status = deed.value("logon")) {
        setFault(console, "refuseLogon=" + *status);
        setFault(console, "expireSession");
    }
}

void StoryTeller::changeCertificate(int console, const Deed& deed)
{
    if (deed.is("swaps")) {
        m_simulator.swapAtLogon(console, deed.is("once") ? Simulator::Swap::Once : Simulator::Swap::Always);
        return;
    }
    m_simulator.swapAtLogon(console, Simulator::Swap::Never);
    clearFault(console, "expiredCertificate");
    clearFault(console, "misnamedCertificate");
    for (const auto& [act, fault] : {std::pair{"renewed", "swapCertificate"},
                                     {"expired", "expiredCertificate"},
                                     {"misnamed", "misnamedCertificate"}}) {
        if (deed.is(act)) {
            setFault(console, fault);
        }
    }
}

// Each console has its faults for itself, so that one console's fault can end while the others' last.
void StoryTeller::setFault(int console, const std::string& fault)
{
    m_simulator.setFault(Fault::parse(fault + ":" + std::to_string(console)));
}

void StoryTeller::clearFault(int console, const std::string& fault)
{
    const Fault wanted = Fault::parse(fault);
    const std::vector<Fault> present = m_simulator.faults();
    for (const Fault& each : present) {
        if (each.console == console && each.name == wanted.name && each.what == wanted.what) {
            m_simulator.clearFault(each);
        }
    }
}

} // namespace lodestar::simulator
