#pragma once

#include <QHostAddress>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <functional>

/** An HTTP server on this machine only, that answers as badly as a test wants. */
class LoopbackServer : public QTcpServer
{
public:
    /** Gets the head of a request; what it returns is sent as it is, then the connection closed. */
    using Handler = std::function<QByteArray(const QByteArray &)>;

    LoopbackServer()
    {
        listen(QHostAddress::LocalHost);
        QObject::connect(this, &QTcpServer::newConnection, [this] {
            QTcpSocket *socket = nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                if (socket->peek(100000).contains("\r\n\r\n")) {
                    answer(socket, socket->readAll());
                }
            });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

    [[nodiscard]] QString url(const QString &path = QStringLiteral("/")) const
    {
        return QStringLiteral("%1://127.0.0.1:%2%3")
            .arg(QLatin1String(key.isNull() ? "http" : "https"))
            .arg(serverPort())
            .arg(path);
    }
    /** An answer with its length; @p head are further lines, each with its end. */
    [[nodiscard]] static QByteArray
    reply(const QByteArray &body, const QByteArray &head = "Content-Type: application/json\r\n",
          const QByteArray &status = "200 OK")
    {
        return "HTTP/1.1 " + status + "\r\n" + head +
               "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }

    Handler handler;
    QSslKey key; ///< With one, and its certificate, the server speaks TLS only.
    QSslCertificate certificate;
    QList<QByteArray> requests;
    qint64 sent = 0;       ///< Bytes that clients took.
    qint64 endless = 0;    ///< Further bytes that follow the answer.
    int drip = 0;          ///< Milliseconds between two bytes; 0: all at once.
    bool isSilent = false; ///< Takes requests and never answers.

protected:
    void incomingConnection(qintptr descriptor) override
    {
        if (key.isNull()) {
            QTcpServer::incomingConnection(descriptor);
            return;
        }
        auto *socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        socket->setPrivateKey(key);
        socket->setLocalCertificate(certificate);
        socket->startServerEncryption();
        addPendingConnection(socket);
    }

private:
    void answer(QTcpSocket *socket, const QByteArray &request)
    {
        requests.append(request);
        if (isSilent) {
            return;
        }
        const QByteArray bytes = handler(request);
        if (drip > 0) {
            auto *timer = new QTimer(socket);
            QObject::connect(timer, &QTimer::timeout, socket, [socket, bytes, at = 0]() mutable {
                socket->write(bytes.mid(at++, 1));
            });
            timer->start(drip);
            return;
        }
        socket->write(bytes);
        if (endless == 0) {
            socket->disconnectFromHost();
            return;
        }
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [this, socket](qint64 size) {
            sent += size;
            if (sent < endless && socket->bytesToWrite() < 65536) {
                socket->write(QByteArray(65536, ' '));
            }
        });
    }
};
