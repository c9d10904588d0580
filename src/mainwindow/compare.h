#pragma once

// Comparison mode: `Compare` shows vessel Omega beside Alpha, `HideCompare`
// takes it away again and returns Omega's windows to following Alpha.

#include "engine/records.h"

namespace vantorel {

void CompareClicked(Calculator& c);
void HideCompareClicked(Calculator& c);

} // namespace vantorel
