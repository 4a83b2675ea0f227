// Another user than the one who runs the tests, where root runs them.
#pragma once
#include <unistd.h>

#include <cstdlib>

inline constexpr uid_t otherUser = 65534;

inline bool isRoot() { return geteuid() == 0; }

/// Root is this user for a while: files without write permission are read-only then.
class AsOrdinaryUser {
public:
    AsOrdinaryUser() { set(otherUser); }
    ~AsOrdinaryUser() { set(0); }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

private:
    static void set(uid_t user) {
        if (getuid() == 0 && seteuid(user) != 0) std::abort();
    }
};
