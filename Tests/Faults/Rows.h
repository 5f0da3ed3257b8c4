// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace lodestar::faults
{

/// What one row's process found, told as JSON on its last line.
class Outcome
{
public:
    /// Provokes a fault once; whatever does not hold meanwhile, or is thrown, is told as this try's trouble.
    void attempt(const std::string& what, const std::function<void()>& provoke);
    /// A doubt about the try that is under way.
    void expect(bool holds, const std::string& what);
    /// Nothing stored may be lost: of the row as a whole.
    void lost(const std::string& what)
    {
        ++m_lost;
        m_troubles.push_back("lost: " + what);
    }
    /// Others' time beside the fault, divided by their time without it; the worst one is told.
    void slowed(double ratio) { m_ratio = ratio > m_ratio ? ratio : m_ratio; }

    bool isGood() const { return m_survived == m_tries && m_lost == 0; }
    void print() const;

private:
    int m_tries = 0;
    int m_survived = 0;
    double m_ratio = 0;
    std::string m_trying;
    bool m_inTrouble = false;
    int m_lost = 0;
    std::vector<std::string> m_troubles; ///< told at the end: the transport writes lines of its own meanwhile
};

using Row = void (*)(Outcome&);
/// By the names that the runner calls them by.
const std::map<std::string, Row>& networkRows();
const std::map<std::string, Row>& fleetRows();

} // namespace lodestar::faults
