#pragma once

#include "sourcereader.h"

#include <QTimer>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace sources {

/**
 * JSON or CSV from an HTTP server. The server is asked whether there is anything new where it can
 * tell; an answer that is cut off, too large, too late or of another kind is an error.
 */
class HttpReader : public SourceReader
{
    Q_OBJECT

public:
    HttpReader(const SourceSettings &settings, const SourceContext &context);
    ~HttpReader() override;

    void open() override;
    void read() override;

private:
    [[nodiscard]] QNetworkRequest request(const QUrl &url, QString *error) const;
    /** Trusts the certificates of the settings besides those that the system trusts. */
    void trustCertificate(QNetworkRequest *request, QString *error) const;
    void get(const QUrl &url);
    void takeBytes();
    void finishReply();
    [[nodiscard]] Reading followRedirection(bool *goesOn);
    [[nodiscard]] Reading answered(bool *goesOn);
    void askAgain();
    [[nodiscard]] bool isEndKnown() const;
    [[nodiscard]] Reading refused(int status) const;
    [[nodiscard]] QString faultOfBody() const;
    /** csv or json, empty when the answer is neither. */
    [[nodiscard]] QString formatOfBody() const;
    void end(const Reading &reading);
    void drop();
    [[nodiscard]] qint64 cap() const;

    QNetworkAccessManager *m_network = nullptr;
    QNetworkReply *m_reply = nullptr;
    QTimer m_limit; ///< Of the whole attempt: bytes that drip in must not prolong it.
    QUrl m_origin;
    QByteArray m_body;
    QByteArray m_former;   ///< The body of the same attempt's answer before this one.
    QByteArray m_tag;      ///< ETag of the answer that was understood last.
    QByteArray m_modified; ///< Its Last-Modified.
    QString m_distrust;    ///< Why the server that was asked last is not trusted.
    int m_redirections = 0;
};

} // namespace sources
