// What the system allows this process, as far as the process itself may choose.
#pragma once

/// Allows as many open files as the system lets this user have, and makes a file that may not grow any further a failed
/// write instead of the end of the process. Call it once, before other threads run.
void prepareProcessLimits();
