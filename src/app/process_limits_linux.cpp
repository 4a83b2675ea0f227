#include <sys/resource.h>

#include <csignal>

#include "app/process_limits.h"

void prepareProcessLimits() {
    rlimit files{};
    if (getrlimit(RLIMIT_NOFILE, &files) == 0 && files.rlim_cur < files.rlim_max) {
        files.rlim_cur = files.rlim_max;
        setrlimit(RLIMIT_NOFILE, &files);
    }
    std::signal(SIGXFSZ, SIG_IGN);
}
