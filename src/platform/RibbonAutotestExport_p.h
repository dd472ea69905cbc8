#pragma once

#include "zelribbon_export.h"

// Internal classes that the library's own tests call directly are exported only from a
// build made with the tests; for hosts they stay hidden like every other internal class.
#ifdef ZEL_AUTOTEST_EXPORTS
#define ZELRIBBON_AUTOTEST_EXPORT ZELRIBBON_EXPORT
#else
#define ZELRIBBON_AUTOTEST_EXPORT
#endif
