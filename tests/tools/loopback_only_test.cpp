// SPDX-License-Identifier: GPL-3.0-or-later
// The functions of the library that ./run preloads stand in this program and so take the place of
// the system's here too.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

namespace {

/// A screen that listens on a free port.
class Screen {
  public:
    Screen() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in everywhere{};
        everywhere.sin_family = AF_INET;
        everywhere.sin_addr.s_addr = htonl(INADDR_ANY);
        EXPECT_EQ(bind(socket_, reinterpret_cast<sockaddr*>(&everywhere), sizeof everywhere), 0);
        setenv("QUILLON_SCREEN_PORT", std::to_string(ntohs(Address().sin_port)).c_str(), 1);
        testing::internal::CaptureStdout();
        EXPECT_EQ(listen(socket_, 1), 0);
        told_ = testing::internal::GetCapturedStdout();
    }
    ~Screen() {
        close(socket_);
        unsetenv("QUILLON_SCREEN_PORT");
    }

    sockaddr_in Address() const {
        sockaddr_in address{};
        socklen_t length = sizeof address;
        getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &length);
        return address;
    }

    /// What the screen says when it is open.
    const std::string& Told() const { return told_; }

    /// Accepts a connection that a process of the user makes, and says whether it got in.
    bool LetsIn(uid_t user) const {
        const sockaddr_in address = Address();
        int ready[2];
        EXPECT_EQ(pipe(ready), 0);
        const pid_t child = fork();
        if (child == 0) {
            char done = 0;
            close(ready[1]);
            // A socket belongs to whoever made it, so its maker becomes the user first.
            if (user != geteuid() && setuid(user) != 0) _exit(1);
            const int own = socket(AF_INET, SOCK_STREAM, 0);
            if (connect(own, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
                _exit(read(ready[0], &done, 1) == 0 ? 0 : 1);
            }
            _exit(1);
        }
        close(ready[0]);
        const int connection = accept(socket_, nullptr, nullptr);
        const int reason = errno;
        close(ready[1]);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0) << "the other process did not connect";
        if (connection >= 0) {
            close(connection);
            return true;
        }
        EXPECT_EQ(reason, EAGAIN);
        return false;
    }

  private:
    int socket_;
    std::string told_;
};

TEST(Loopback, AScreenIsOpenToThisComputerAlone) {
    const Screen screen;
    EXPECT_EQ(screen.Address().sin_addr.s_addr, htonl(INADDR_LOOPBACK));
    EXPECT_NE(screen.Told().find("vncviewer 127.0.0.1:" +
                                 std::to_string(ntohs(screen.Address().sin_port))),
              std::string::npos);
}

TEST(Loopback, AProcessOfTheSameUserGetsIn) { EXPECT_TRUE(Screen().LetsIn(geteuid())); }

TEST(Loopback, AProcessOfAnotherUserDoesNot) {
    // Only root can become somebody else; the owner's table is tested beside this for everybody.
    constexpr uid_t nobody = 65534;
    const bool becomesNobody = geteuid() == 0;
    EXPECT_EQ(Screen().LetsIn(becomesNobody ? nobody : geteuid()), !becomesNobody);
}

TEST(Loopback, APortThatIsTakenEndsTheProgramAndSaysSo) {
    const Screen screen;
    const sockaddr_in address = screen.Address();
    EXPECT_EXIT(
        {
            const int second = socket(AF_INET, SOCK_STREAM, 0);
            bind(second, reinterpret_cast<const sockaddr*>(&address), sizeof address);
        },
        testing::ExitedWithCode(EXIT_FAILURE), "cannot be had");
}

}  // namespace
