#include "online/xml_document.h"

#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace zafro {

namespace {

// Declaration, processing instructions, document type and comments are nodes of
// the walk; white-space-only text is not kept (pugixml drops it unless asked).
constexpr unsigned kParseOptions = pugi::parse_default | pugi::parse_declaration | pugi::parse_pi |
                                   pugi::parse_comments | pugi::parse_doctype;

bool isNetworkAddress(const QString &source)
{
    return source.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ||
           source.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
}

// A "file:" address or a plain path; anything else with a scheme is not loadable.
QString localPathOf(const QString &source)
{
    const QUrl url(source);
    if (url.isLocalFile())
        return url.toLocalFile();
    if (source.size() > 2 && source.at(1) != u':' && url.scheme().size() > 1)
        return {};
    return source;
}

} // namespace

XmlDocument::XmlDocument(QObject *parent) : QObject(parent) {}

XmlDocument::~XmlDocument()
{
    dropReply();
}

void XmlDocument::dropReply()
{
    if (!reply_)
        return;
    QNetworkReply *reply = reply_;
    reply_ = nullptr;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

void XmlDocument::advanceTo(int state)
{
    while (readyState_ < state) {
        ++readyState_;
        Q_EMIT readyStateChanged(readyState_);
    }
}

bool XmlDocument::load(const QString &source)
{
    dropReply();
    ++generation_; // a file read still under way belongs to the old load
    document_.reset();
    received_.clear();
    readyState_ = 0;
    advanceTo(1);

    if (isNetworkAddress(source)) {
        const QUrl url(source);
        if (!url.isValid() || url.host().isEmpty()) {
            finish({}, false);
            return false;
        }
        if (!network_)
            network_ = new QNetworkAccessManager(this);
        QNetworkRequest request(url);
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                             QNetworkRequest::NoLessSafeRedirectPolicy);
        reply_ = network_->get(request);
        connect(reply_, &QNetworkReply::metaDataChanged, this, [this] { advanceTo(2); });
        connect(reply_, &QNetworkReply::readyRead, this, [this] {
            received_ += reply_->readAll();
            if (received_.size() > kMaxBytes) {
                dropReply();
                finish({}, false);
                return;
            }
            advanceTo(3);
        });
        connect(reply_, &QNetworkReply::finished, this, &XmlDocument::onReplyFinished);
        return true;
    }

    const QString path = localPathOf(source);
    if (path.isEmpty() || !QFile::exists(path)) {
        finish({}, false);
        return false;
    }
    startFileRead(path);
    return true;
}

void XmlDocument::startFileRead(const QString &path)
{
    // One state per turn of the event loop, as a read from disk would pass them.
    const int generation = generation_;
    QTimer::singleShot(0, this, [this, path, generation] {
        if (generation != generation_)
            return;
        QFile file(path);
        const bool ok = file.open(QIODevice::ReadOnly);
        received_ = ok ? file.read(kMaxBytes + 1) : QByteArray();
        const bool fits = received_.size() <= kMaxBytes;
        advanceTo(2);
        QTimer::singleShot(0, this, [this, ok, fits, generation] {
            if (generation != generation_)
                return;
            advanceTo(3);
            QTimer::singleShot(0, this, [this, ok, fits, generation] {
                if (generation == generation_)
                    finish(received_, ok && fits);
            });
        });
    });
}

void XmlDocument::onReplyFinished()
{
    QNetworkReply *reply = reply_;
    if (!reply)
        return;
    received_ += reply->readAll();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool ok = reply->error() == QNetworkReply::NoError && (status == 0 || status < 300) &&
                    received_.size() <= kMaxBytes;
    reply_ = nullptr;
    reply->deleteLater();
    finish(received_, ok);
}

void XmlDocument::finish(const QByteArray &data, bool ok)
{
    document_.reset();
    if (ok && !data.isEmpty()) {
        const pugi::xml_parse_result parsed = document_.load_buffer(
            data.constData(), static_cast<size_t>(data.size()), kParseOptions);
        // A source that is not well-formed leaves no document at all, not the
        // part read before the fault.
        if (!parsed)
            document_.reset();
    }
    received_.clear();
    advanceTo(4);
}

int XmlDocument::countNodes(const pugi::xml_node &parent)
{
    int count = 0;
    for (const pugi::xml_node &node : parent.children())
        count += 1 + countNodes(node);
    return count;
}

} // namespace zafro
