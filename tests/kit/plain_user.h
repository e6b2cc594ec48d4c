#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillet::test
{

// As long as it lives, a program that runs as root is refused what plain users are refused.
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
