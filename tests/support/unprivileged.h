#pragma once

// Runs part of a test as an unprivileged user. As root, the permission bits stop nothing, so a
// test of unreadable files runs its body in a forked child that has become 'nobody' (uid and gid
// 65534) and owns the test's folder. The child's failures are printed by the child and reach
// the parent through its exit status. As any other user the body simply runs.

// Standard library
#include <cstdio>
#include <filesystem>
#include <functional>

// POSIX
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

// GoogleTest
#include <gtest/gtest.h>

namespace marivale {

inline constexpr uid_t kNobody = 65534;

inline void runUnprivileged(const std::filesystem::path& folder,
                            const std::function<void()>& body) {
    if (::geteuid() != 0) {
        body();
        return;
    }
    ASSERT_EQ(::chown(folder.c_str(), kNobody, kNobody), 0);
    std::fflush(stdout);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        if (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 || ::setuid(kNobody) != 0) {
            std::fprintf(stderr, "could not become nobody\n");
            ::_exit(3);
        }
        body();
        std::fflush(stdout);
        ::_exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << "the unprivileged part died";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "the unprivileged part failed; its messages are above";
}

} // namespace marivale
