// Limits that the system sets to a program. On Windows, where there are none of these, the tests that need
// them are left out by name.
#pragma once

#include <cstdlib>
#include <functional>
#include <string>

#ifdef _WIN32

inline void inClosedFolder(const std::string&, const std::function<void()>&) { std::abort(); }
inline void withRoomFor(std::size_t, const std::function<void()>&) { std::abort(); }

#else

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

// Runs the action while the folder takes no new files, and without root's rights to everything.
inline void inClosedFolder(const std::string& folder, const std::function<void()>& action) {
    const uid_t own = ::getuid(), other = own == 0 ? 65534 : own;
    EXPECT_EQ(::chown(folder.c_str(), other, ::getgid()) | ::chmod(folder.c_str(), 0500), 0);
    EXPECT_EQ(::setresuid(other, other, own), 0);
    action();
    EXPECT_EQ(::setresuid(own, own, own) | ::chmod(folder.c_str(), 0700), 0);
}

// Runs the action while no file can grow beyond that many bytes.
inline void withRoomFor(std::size_t bytes, const std::function<void()>& action) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{bytes, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    action();
    ::setrlimit(RLIMIT_FSIZE, &before);
}

#endif
