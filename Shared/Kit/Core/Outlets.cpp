// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Outlets.h"

#include "Kit/Core/OnMain.h"

namespace lodestar
{

void ViewOutlet::setHidden(bool hidden)
{
    assignOnMain(this, &ViewOutlet::m_hidden, hidden, &ViewOutlet::hiddenChanged);
}

void ViewOutlet::setEnabled(bool enabled)
{
    assignOnMain(this, &ViewOutlet::m_enabled, enabled, &ViewOutlet::enabledChanged);
}

void LabelOutlet::setText(const QString& text)
{
    assignOnMain(this, &LabelOutlet::m_text, text, &LabelOutlet::textChanged);
}

void LabelOutlet::setState(Role::State state)
{
    assignOnMain(this, &LabelOutlet::m_state, state, &LabelOutlet::stateChanged);
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
    assignOnMain(this, &IndicatorOutlet::m_animating, animating, &IndicatorOutlet::animatingChanged);
}

void FieldOutlet::setText(const QString& text)
{
    assignOnMain(this, &FieldOutlet::m_text, text, &FieldOutlet::textChanged);
}

void FieldOutlet::resignFirstResponder()
{
    onMain(this, [](FieldOutlet& outlet) { Q_EMIT outlet.resignRequested(); });
}

void ImageOutlet::setImageName(const QString& name)
{
    assignOnMain(this, &ImageOutlet::m_imageName, name, &ImageOutlet::imageNameChanged);
}

void SwitchOutlet::setOn(bool on)
{
    assignOnMain(this, &SwitchOutlet::m_on, on, &SwitchOutlet::onChanged);
}

void SegmentedControlOutlet::setSelectedSegmentIndex(int index)
{
    assignOnMain(this, &SegmentedControlOutlet::m_selectedSegmentIndex, index,
                 &SegmentedControlOutlet::selectedSegmentIndexChanged);
}

} // namespace lodestar
