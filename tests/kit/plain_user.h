#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillet::test
{

// During its lifetime, a program that runs as root has only the rights of plain users.
class PlainUser
{
public:
    PlainUser() { become(nobody); }
    ~PlainUser() { become(0); }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;

private:
    static constexpr uid_t nobody = 65534;

    static void become(uid_t user) { EXPECT_TRUE(::getuid() != 0 || ::seteuid(user) == 0); }
};

} // namespace quillet::test
