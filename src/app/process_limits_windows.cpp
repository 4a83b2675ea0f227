#include "app/process_limits.h"

// Files are limited by memory alone, and one that may not grow is a failed write already.
void prepareProcessLimits() {}
