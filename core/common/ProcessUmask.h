#pragma once

#include <sys/types.h>

namespace sw {

// The process's file mode creation mask, read without changing it: setting
// the mask to learn it would give files made meanwhile by another thread
// the wrong permissions. Read from /proc/self/status; where that cannot be
// read, the mask the process had when it started.
mode_t ProcessUmask();

} // namespace sw
