#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

/// While it lives, this thread has no more rights to files than their modes give it, even where the
/// tests run as the superuser.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        syscall(SYS_capget, &m_header, m_usual.data());
        auto lowered = m_usual;
        lowered[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
        syscall(SYS_capset, &m_header, lowered.data());
    }
    ~OrdinaryUser() { syscall(SYS_capset, &m_header, m_usual.data()); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    __user_cap_header_struct m_header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> m_usual{};
};
