// SPDX-License-Identifier: GPL-3.0-or-later
// Web servers on this computer, good ones and bad ones.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QTcpServer;
class QTcpSocket;

/// What a server does with a connection when a request has come.
using ServerAnswer = std::function<void(QTcpSocket& socket)>;

/// A web server on this computer that answers each path as the test says, and remembers requests.
/// As long as it stands, the environment names no proxy but those that the test names.
class LocalServer final : public QObject {
    Q_OBJECT
  public:
    enum class Kind { Plain, Safe };  ///< Whether connections are encrypted.

    explicit LocalServer(Kind kind = Kind::Plain);
    ~LocalServer() override;

    QString Address(const QString& path) const;

    /// The file with the certificate of a safe server.
    static QString Certificate();

    void Close();

    /// By path, or by the whole address where the server is asked as a proxy.
    std::map<QByteArray, ServerAnswer> answers;
    std::vector<QByteArray> requests;

  private:
    void Read(QTcpSocket& socket);

    QString scheme_;
    std::unique_ptr<QTcpServer> server_;
    std::map<QTcpSocket*, QByteArray> unfinished_;
};

/// The answer with these headers; nothing follows on it.
QByteArray HttpReply(const QByteArray& status, const QByteArray& headers, const QByteArray& body);

/// The page with its length.
QByteArray HttpPage(const QByteArray& body, const QByteArray& headers = {});

/// The page in chunks of that size, without its last line.
QByteArray InChunks(const QByteArray& body, qsizetype size);

/// Answers with these bytes and closes the connection.
ServerAnswer Sends(const QByteArray& bytes);

/// Answers with these bytes and keeps the connection.
ServerAnswer SendsAndStays(const QByteArray& bytes);

/// Answers with these bytes and breaks the connection off.
ServerAnswer SendsAndResets(const QByteArray& bytes);

/// Leads on to another address.
ServerAnswer LeadsTo(const QByteArray& status, const QString& address);

/// Sends the head, and for ever after it `more`, as soon as the one before has left.
ServerAnswer SendsForever(const QByteArray& head, const QByteArray& more,
                          std::chrono::milliseconds pause);

/// All that a server can do wrong with a page, by what it does. None of it gives the page.
std::map<std::string, ServerAnswer> Misbehaviours(const QByteArray& page);

/// The bytes as gzip packs them.
QByteArray Gzip(const QByteArray& bytes);
