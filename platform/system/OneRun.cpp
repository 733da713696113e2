// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OneRun.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QThread>
#include <cerrno>
#include <utility>

namespace {

// Milliseconds; a form that makes lines looks at no messages for ten seconds.
constexpr int longestAnswer = 11'000;
constexpr const char* activationToken = "XDG_ACTIVATION_TOKEN";
constexpr const char* shown = "shown\n";

struct stat StatusOf(int descriptor) {
    struct stat status {};
    ::fstat(descriptor, &status);
    return status;
}

// Where the runs of this user on a folder meet: a name that no file bears, gone with its owner.
QString MeetingPlace(int descriptor) {
    const struct stat status = StatusOf(descriptor);
    return QStringLiteral("quillon-%1-%2-%3")
        .arg(QString::number(::getuid()), QString::number(status.st_dev),
             QString::number(status.st_ino));
}

bool IsOfThisUser(const QLocalSocket& socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    const auto descriptor = static_cast<int>(socket.socketDescriptor());
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::getuid();
}

QString UserOf(const QString& process) {
    struct stat status {};
    if (::stat(QFile::encodeName(QStringLiteral("/proc/") % process).constData(), &status) == -1)
        return {};
    const passwd* const user = ::getpwuid(status.st_uid);
    return user == nullptr ? QString::number(status.st_uid) : QString::fromLocal8Bit(user->pw_name);
}

}  // namespace

OneRun::OneRun(const QString& folder)
    : folder_(folder),
      descriptor_(
          ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

OneRun::~OneRun() {
    if (descriptor_ != -1) ::close(descriptor_);
}

OneRun::Hold OneRun::TakeHold() const {
    if (::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return Hold::Held;
    return errno == EWOULDBLOCK ? Hold::Taken : Hold::Impossible;
}

bool OneRun::HoldsFolder() {
    // A folder that cannot be opened is reported by who reads in it.
    if (descriptor_ == -1) return true;
    constexpr int tries = 10;
    constexpr unsigned long pause = 100;  // milliseconds
    for (int attempt = 0; attempt < tries; ++attempt) {
        const Hold hold = TakeHold();
        if (hold == Hold::Held) return true;
        QLocalSocket holder;
        holder.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        holder.connectToServer(MeetingPlace(descriptor_));
        const bool answers = holder.waitForConnected(longestAnswer);
        if (hold == Hold::Impossible) return !answers;
        if (answers) return false;
        QThread::msleep(pause);
    }
    return false;
}

bool OneRun::CallHolder() const {
    QLocalSocket holder;
    holder.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    holder.connectToServer(MeetingPlace(descriptor_));
    if (!holder.waitForConnected(longestAnswer) || !IsOfThisUser(holder)) return false;
    // The desktop lets only the program come to the front that the user has just started, and lets
    // that one pass it on.
    holder.write(qgetenv(activationToken) + '\n');
    return holder.waitForReadyRead(longestAnswer) && holder.readAll() == shown;
}

QString OneRun::Holder() const {
    const struct stat status = StatusOf(descriptor_);
    QFile locks(QStringLiteral("/proc/locks"));
    if (!locks.open(QIODevice::ReadOnly)) return {};
    const QString place = QStringLiteral(" %1:%2:%3 ")
                              .arg(major(status.st_dev), 2, 16, QLatin1Char('0'))
                              .arg(minor(status.st_dev), 2, 16, QLatin1Char('0'))
                              .arg(status.st_ino);
    const QRegularExpression owner(QStringLiteral("FLOCK +ADVISORY +WRITE +(\\d+)") % place);
    const QString process = owner.match(QString::fromLatin1(locks.readAll())).captured(1);
    if (process.isEmpty()) return {};
    return QStringLiteral("process %1 of %2").arg(process, UserOf(process));
}

void OneRun::AnswerBy(std::function<void()> show) {
    show_ = std::move(show);
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::AbstractNamespaceOption);
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(),
                     [this] { Answer(); });
    if (descriptor_ != -1) server_->listen(MeetingPlace(descriptor_));
}

void OneRun::Answer() {
    QLocalSocket* const caller = server_->nextPendingConnection();
    QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    QObject::connect(caller, &QLocalSocket::readyRead, caller, [this, caller] {
        if (!caller->canReadLine() || !IsOfThisUser(*caller)) return;
        const QByteArray token = caller->readLine().trimmed();
        if (!token.isEmpty()) qputenv(activationToken, token);
        show_();
        caller->write(shown);
        caller->disconnectFromServer();
    });
}
