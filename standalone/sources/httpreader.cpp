#include "httpreader.h"

#include "movedsources.h"
#include "secrets.h"
#include "sourcetexts.h"
#include "systemreason.h"

#include <QFile>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslError>

namespace sources {

namespace {

constexpr qint64 DefaultCap = 16LL * 1024 * 1024;
constexpr int DefaultTimeout = 30000;
constexpr int LargestCertificate = 1 << 20;
constexpr int MostRedirections = 5;
constexpr int LongestRetryAfter = 3600 * 1000;

bool isWeb(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

int statusOf(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/** Milliseconds that a Retry-After asks for, in either of its forms; -1 without one. */
int retryAfter(const QByteArray &header)
{
    bool isNumber = false;
    qint64 wanted = header.trimmed().toLongLong(&isNumber) * 1000;
    if (!isNumber) {
        QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(header.trimmed()),
                                                 QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
        date.setTimeSpec(Qt::UTC);
        if (!date.isValid()) {
            return -1;
        }
        wanted = QDateTime::currentDateTimeUtc().msecsTo(date);
    }
    return int(qBound<qint64>(0, wanted, LongestRetryAfter));
}

} // namespace

HttpReader::HttpReader(const SourceSettings &settings, const SourceContext &context)
    : SourceReader(settings, context)
    , m_limit(this)
{}

HttpReader::~HttpReader()
{
    drop();
}

void HttpReader::open()
{
    m_network = new QNetworkAccessManager(this);
    m_network->setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    m_limit.setSingleShot(true);
    m_limit.setInterval(milliseconds(settings().timeout, DefaultTimeout));
    connect(&m_limit, &QTimer::timeout, this, [this] {
        end(Reading::failed(
            SourceTexts::tr("no answer within %1 seconds").arg(m_limit.interval() / 1000.0)));
    });
}

qint64 HttpReader::cap() const
{
    return settings().sizeCap > 0 ? settings().sizeCap : DefaultCap;
}

void HttpReader::read()
{
    QString error;
    m_origin = QUrl(resolveReferences(settings().url, &error), QUrl::StrictMode);
    if (error.isEmpty() && !isWeb(m_origin)) {
        error = SourceTexts::tr("it must be an http or https address");
    }
    if (!error.isEmpty()) {
        return end(Reading::failed(error));
    }
    m_redirections = 0;
    m_former.clear();
    m_limit.start();
    get(m_origin);
}

QNetworkRequest HttpReader::request(const QUrl &url, QString *error) const
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("lctrlsex"));
    request.setRawHeader("Accept", "application/json, text/csv;q=0.9, */*;q=0.1");
    // Unpacking has no limit there, and the length announced would not be that of what comes out.
    request.setRawHeader("Accept-Encoding", "identity");
    if (!m_tag.isEmpty()) {
        request.setRawHeader("If-None-Match", m_tag);
    }
    if (!m_modified.isEmpty()) {
        request.setRawHeader("If-Modified-Since", m_modified);
    }
    // What the user gives to one server is no business of another one that it points to.
    const bool isOrigin = url.scheme() == m_origin.scheme() && url.host() == m_origin.host() &&
                          url.port() == m_origin.port();
    for (const NamedText &header : settings().headers) {
        if (isOrigin) {
            request.setRawHeader(header.name.toLatin1(),
                                 resolveReferences(header.text, error).toUtf8());
        }
    }
    if (isOrigin && !settings().certificate.isEmpty()) {
        trustCertificate(&request, error);
    }
    return request;
}

void HttpReader::trustCertificate(QNetworkRequest *request, QString *error) const
{
    QFile file(fullFileName(context().folder, settings().certificate));
    if (!file.open(QIODevice::ReadOnly)) {
        *error = SourceTexts::tr("the certificate cannot be read: %1")
                     .arg(systemReason(file.errorString()));
        return;
    }
    const QList<QSslCertificate> certificates =
        QSslCertificate::fromData(file.read(LargestCertificate), QSsl::Pem);
    if (certificates.isEmpty()) {
        *error = SourceTexts::tr("there is no certificate in %1").arg(settings().certificate);
        return;
    }
    QSslConfiguration configuration = request->sslConfiguration();
    configuration.setCaCertificates(QSslConfiguration::systemCaCertificates() + certificates);
    request->setSslConfiguration(configuration);
}

void HttpReader::get(const QUrl &url)
{
    QString error;
    const QNetworkRequest asked = request(url, &error);
    if (!error.isEmpty()) {
        return end(Reading::failed(error));
    }
    m_body.clear();
    m_distrust.clear();
    m_reply = m_network->get(asked);
    m_reply->setReadBufferSize(1 << 20);
    connect(m_reply, &QIODevice::readyRead, this, &HttpReader::takeBytes);
    connect(m_reply, &QNetworkReply::sslErrors, this,
            [this](const QList<QSslError> &errors) { m_distrust = errors.value(0).errorString(); });
    connect(m_reply, &QNetworkReply::finished, this, &HttpReader::finishReply);
}

void HttpReader::takeBytes()
{
    m_body += m_reply->readAll();
    if (m_body.size() > cap()) {
        end(Reading::failed(SourceTexts::tr("the answer is larger than %1 bytes").arg(cap())));
    }
}

void HttpReader::finishReply()
{
    takeBytes();
    if (m_reply == nullptr) {
        return; // it was too large
    }
    bool goesOn = false;
    const Reading reading = followRedirection(&goesOn);
    if (!goesOn) {
        end(reading);
    }
}

Reading HttpReader::followRedirection(bool *goesOn)
{
    const int status = statusOf(*m_reply);
    const QByteArray location = m_reply->rawHeader("Location");
    if (status < 301 || status > 308 || status == 304 || location.isEmpty()) {
        return answered(goesOn);
    }
    const QUrl target = m_reply->url().resolved(QUrl::fromEncoded(location));
    if (!isWeb(target)) {
        return Reading::failed(
            SourceTexts::tr("the address leads to a scheme other than http and https"));
    }
    if (m_reply->url().scheme() == QLatin1String("https") &&
        target.scheme() != QLatin1String("https")) {
        return Reading::failed(SourceTexts::tr("a redirection from https to http is not followed"));
    }
    if (++m_redirections > MostRedirections) {
        return Reading::failed(SourceTexts::tr("more than %1 redirections").arg(MostRedirections));
    }
    *goesOn = true;
    drop();
    get(target);
    return {};
}

Reading HttpReader::answered(bool *goesOn)
{
    const int status = statusOf(*m_reply);
    if (status == 304) {
        Reading reading;
        reading.outcome = Reading::Unchanged;
        return reading;
    }
    if (!m_distrust.isEmpty() && m_reply->error() == QNetworkReply::SslHandshakeFailedError) {
        return Reading::failed(SourceTexts::tr("the server is not trusted: %1").arg(m_distrust));
    }
    if (status < 400 && m_reply->error() != QNetworkReply::NoError) {
        return Reading::failed(
            SourceTexts::tr("the connection failed: %1").arg(m_reply->errorString()));
    }
    if (status != 200) {
        return refused(status);
    }
    if (!isEndKnown() && m_former.isEmpty() && !m_body.isEmpty()) {
        *goesOn = true;
        askAgain();
        return {};
    }
    const QString fault = faultOfBody();
    if (!fault.isEmpty()) {
        return Reading::failed(fault);
    }
    const Reply reply = parseReply(m_body, formatOfBody(), settings(), stop());
    const bool isWhole = reply.error.isEmpty();
    m_tag = isWhole ? m_reply->rawHeader("ETag") : QByteArray();
    m_modified = isWhole ? m_reply->rawHeader("Last-Modified") : QByteArray();
    return Reading::of(reply, m_body.size());
}

void HttpReader::askAgain()
{
    m_former = m_body;
    const QUrl url = m_reply->url();
    drop();
    get(url);
}

Reading HttpReader::refused(int status) const
{
    const QString phrase =
        m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString().left(100);
    Reading reading =
        Reading::failed(SourceTexts::tr("the server answered %1 %2").arg(status).arg(phrase));
    if (status == 429 || status == 503) {
        reading.retryAfter = retryAfter(m_reply->rawHeader("Retry-After"));
    }
    return reading;
}

// The toolkit takes an answer in chunks for whole when the connection ends between two of them, or
// does not, as it happens. Rows that come without their length are therefore asked for twice.
bool HttpReader::isEndKnown() const
{
    const bool isJson = formatOfBody() == QLatin1String("json");
    const QByteArray last = m_body.trimmed().right(1);
    return m_reply->hasRawHeader("Content-Length") || (isJson && (last == "}" || last == "]"));
}

QString HttpReader::faultOfBody() const
{
    bool isLength = false;
    const qint64 length = m_reply->rawHeader("Content-Length").toLongLong(&isLength);
    if (isLength && length > m_body.size()) {
        return SourceTexts::tr("the answer is cut off: %1 of %2 bytes came")
            .arg(m_body.size())
            .arg(length);
    }
    if (m_body.isEmpty()) {
        return SourceTexts::tr("the answer is empty");
    }
    const bool isOneCut = !m_former.isEmpty() && m_former != m_body &&
                          (m_former.startsWith(m_body) || m_body.startsWith(m_former));
    if (isOneCut) {
        return SourceTexts::tr("the answer is cut off");
    }
    return formatOfBody().isEmpty()
               ? SourceTexts::tr("the content type %1 is neither JSON nor CSV; set \"format\"")
                     .arg(QString::fromLatin1(m_reply->rawHeader("Content-Type")).left(100))
               : QString();
}

QString HttpReader::formatOfBody() const
{
    if (!settings().format.isEmpty()) {
        return settings().format;
    }
    const QByteArray type = m_reply->rawHeader("Content-Type").toLower().split(';').value(0);
    const QString json = QStringLiteral("json");
    const QString csv = QStringLiteral("csv");
    if (type.contains("json")) {
        return json;
    }
    if (type.contains("csv") || type.contains("tab-separated")) {
        return csv;
    }
    const QByteArray name = type.trimmed();
    if (!name.isEmpty() && name != "text/plain" && name != "application/octet-stream") {
        return QString();
    }
    const QByteArray start = m_body.left(1000).trimmed();
    return start.startsWith('{') || start.startsWith('[') ? json : csv;
}

void HttpReader::drop()
{
    if (m_reply != nullptr) {
        QNetworkReply *reply = m_reply;
        m_reply = nullptr;
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void HttpReader::end(const Reading &reading)
{
    m_limit.stop();
    drop();
    m_body.clear();
    m_former.clear();
    emit finished(reading);
}

} // namespace sources
