#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

/// While it lives, the permissions of files bind the superuser too, in this thread. For everybody
/// else it changes nothing.
///
/// The user stays the same: another one might not even see the files of a private folder.
class OrdinaryRights
{
public:
    OrdinaryRights()
    {
        ::syscall(SYS_capget, &head, rights.data());
        auto less = rights;
        less[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
        ::syscall(SYS_capset, &head, less.data());
    }
    ~OrdinaryRights() { ::syscall(SYS_capset, &head, rights.data()); }
    OrdinaryRights(const OrdinaryRights &) = delete;
    OrdinaryRights &operator=(const OrdinaryRights &) = delete;

private:
    __user_cap_header_struct head = {_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> rights = {};
};
