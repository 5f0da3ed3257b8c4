// SPDX-License-Identifier: Apache-2.0
import Lodestar.Charts

/// A line chart: `outlet` is the controller's LineChartView.
PlotChart {}
