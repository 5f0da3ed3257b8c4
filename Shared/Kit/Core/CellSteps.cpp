// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/CellSteps.h"

#include "Kit/Core/NavigationStack.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

/// The first step waits for the screen's first frame, so that rows show what is known before a step blocks.
constexpr std::chrono::milliseconds firstDelay{60};
/// Pauses between steps that are waited for after a slide, so that its last frame is drawn before a step blocks.
constexpr int restAfterSlide = 3;

bool slides(const QQuickItem* item)
{
    while (item != nullptr) {
        const auto* const stack = qobject_cast<const NavigationStack*>(item);
        if (stack != nullptr && stack->isBusy()) {
            return true;
        }
        item = item->parentItem();
    }
    return false;
}

} // namespace

void CellSteps::complete(QQuickItem& row, int index, Step step, std::function<void(const QVariant&)> show)
{
    std::erase_if(m_waiting, [&row](const Waiting& each) { return !each.row || each.row == &row; });
    m_waiting.push_back({&row, index, std::move(step), std::move(show)});
    wake();
}

void CellSteps::wake()
{
    if (m_waiting.empty() || std::exchange(m_working, true)) {
        return;
    }
    doInStepsOnMain([steps = QPointer<CellSteps>(this)] { return steps ? steps->work() : NextStep::None; }, firstDelay);
}

std::vector<CellSteps::Waiting>::iterator CellSteps::next()
{
    std::erase_if(m_waiting, [](const Waiting& each) { return !each.row; });
    const auto rank = [](const Waiting& each) {
        return std::pair(!each.row->isVisible(), each.begun ? -1 : each.index);
    };
    const auto first = std::ranges::min_element(m_waiting, {}, rank);
    return first != m_waiting.end() && first->row->isVisible() ? first : m_waiting.end();
}

NextStep CellSteps::work()
{
    const auto chosen = next();
    if (chosen == m_waiting.end()) {
        m_working = false;
        return NextStep::None;
    }
    if (slides(chosen->row)) {
        m_rest = restAfterSlide;
        return NextStep::Later;
    }
    if (m_rest > 0) {
        --m_rest;
        return NextStep::Later;
    }
    chosen->begun = true;
    const std::optional<QVariant> cell = chosen->step();
    if (cell) {
        const Waiting done = std::move(*chosen);
        m_waiting.erase(chosen);
        done.show(*cell);
    }
    return NextStep::AtOnce;
}

} // namespace lodestar
