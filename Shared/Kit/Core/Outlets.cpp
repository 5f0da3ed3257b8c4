// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Outlets.h"

#include "Kit/Core/OnMain.h"

namespace lodestar
{

void ViewOutlet::setHidden(bool hidden)
{
    onMain(this, [hidden](ViewOutlet& outlet) {
        if (outlet.m_hidden != hidden) {
            outlet.m_hidden = hidden;
            Q_EMIT outlet.hiddenChanged();
        }
    });
}

void LabelOutlet::setText(const QString& text)
{
    onMain(this, [text](LabelOutlet& outlet) {
        if (outlet.m_text != text) {
            outlet.m_text = text;
            Q_EMIT outlet.textChanged();
        }
    });
}

void LabelOutlet::setState(Role::State state)
{
    onMain(this, [state](LabelOutlet& outlet) {
        if (outlet.m_state != state) {
            outlet.m_state = state;
            Q_EMIT outlet.stateChanged();
        }
    });
}

void IndicatorOutlet::startAnimating()
{
    setAnimating(true);
}

void IndicatorOutlet::stopAnimating()
{
    setAnimating(false);
}

void IndicatorOutlet::setAnimating(bool animating)
{
    onMain(this, [animating](IndicatorOutlet& outlet) {
        if (outlet.m_animating != animating) {
            outlet.m_animating = animating;
            Q_EMIT outlet.animatingChanged();
        }
    });
}

void FieldOutlet::setText(const QString& text)
{
    onMain(this, [text](FieldOutlet& outlet) {
        if (outlet.m_text != text) {
            outlet.m_text = text;
            Q_EMIT outlet.textChanged();
        }
    });
}

void FieldOutlet::setEnabled(bool enabled)
{
    onMain(this, [enabled](FieldOutlet& outlet) {
        if (outlet.m_enabled != enabled) {
            outlet.m_enabled = enabled;
            Q_EMIT outlet.enabledChanged();
        }
    });
}

void FieldOutlet::resignFirstResponder()
{
    onMain(this, [](FieldOutlet& outlet) { Q_EMIT outlet.resignRequested(); });
}

void ImageOutlet::setImageName(const QString& name)
{
    onMain(this, [name](ImageOutlet& outlet) {
        if (outlet.m_imageName != name) {
            outlet.m_imageName = name;
            Q_EMIT outlet.imageNameChanged();
        }
    });
}

void SwitchOutlet::setOn(bool on)
{
    onMain(this, [on](SwitchOutlet& outlet) {
        if (outlet.m_on != on) {
            outlet.m_on = on;
            Q_EMIT outlet.onChanged();
        }
    });
}

void SegmentedControlOutlet::setSelectedSegmentIndex(int index)
{
    onMain(this, [index](SegmentedControlOutlet& outlet) {
        if (outlet.m_selectedSegmentIndex != index) {
            outlet.m_selectedSegmentIndex = index;
            Q_EMIT outlet.selectedSegmentIndexChanged();
        }
    });
}

} // namespace lodestar
