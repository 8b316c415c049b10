// The table as the plain language lays it out.
#include "platform/win32/toolkit/ToolkitTable.h"

#include <stddef.h>

const uint32_t LayoutInC[4] = {sizeof(RUXTable), sizeof(RUXValue), offsetof(RUXValue, Real),
                               offsetof(RUXTable, Invoke)};
