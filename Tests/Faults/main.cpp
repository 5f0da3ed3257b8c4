// SPDX-License-Identifier: Apache-2.0
// One row of the fault table: its name is the only argument. What it found is the last line of its output.
#include "Platform/MemoryReserve.h"
#include "Tests/Faults/Drive.h"

#include <fmt/format.h>

#include <exception>

namespace lodestar::faults
{

void Outcome::attempt(const std::string& what, const std::function<void()>& provoke)
{
    ++m_tries;
    m_trying = what;
    m_inTrouble = false;
    try {
        provoke();
    } catch (const std::exception& exception) {
        expect(false, exception.what());
    }
    m_survived += m_inTrouble ? 0 : 1;
}

void Outcome::expect(bool holds, const std::string& what)
{
    if (!holds) {
        m_inTrouble = true;
        m_troubles.push_back(m_trying + ": " + what);
    }
}

void Outcome::print() const
{
    for (const std::string& trouble : m_troubles) {
        fmt::print("\ntrouble: {}", trouble);
    }
    fmt::print("\n{{\"tries\": {}, \"survived\": {}, \"ratio\": {:.3f}, \"peak\": {:.1f}, \"lost\": {}}}\n", m_tries,
               m_survived, m_ratio, memory("VmHWM") / 1024 / 1024, m_lost);
}

} // namespace lodestar::faults

int main(int argc, char** argv)
{
    using namespace lodestar::faults;
    lodestar::MemoryReserve::install(); // as the application does
    const std::string name = argc == 2 ? argv[1] : "";
    for (const auto* rows : {&networkRows(), &fleetRows()}) {
        if (const auto row = rows->find(name); row != rows->end()) {
            Outcome outcome;
            row->second(outcome);
            outcome.print();
            return outcome.isGood() ? 0 : 1;
        }
    }
    fmt::print(stderr, "there is no row \"{}\"\n", name);
    return 2;
}
