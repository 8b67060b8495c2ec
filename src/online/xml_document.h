#pragma once

// Online data.
//
// Every document the suite takes from the network (news, currency rates, plate
// counts) or from a local plates file goes through one pipeline: an XmlDocument
// loads it without blocking and reports its ready state, and a FetchCycle
// (fetch_cycle.h) polls that state on timers, checks an identity attribute at a
// fixed node position and then hands the data attributes of every later node to
// its window. Nodes are found by position only, never by name.

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>

#include <pugixml.hpp>

class QNetworkAccessManager;
class QNetworkReply;

namespace zafro {

// An XML document loaded asynchronously from an http/https address or a local
// path, with the five ready states of the classic document object:
// 0 not started, 1 loading, 2 loaded (the source answered), 3 interactive (data
// arriving), 4 complete. States are only ever passed in that order, one by one.
//
// The tree counts what the walks count: the declaration, processing instructions,
// the document type, comments and text nodes are nodes; text made of white space
// alone is dropped. Nothing outside the document is ever fetched: no DTD is read,
// no entity other than the five predefined ones and character references is
// expanded, so an entity bomb stays inert text.
class XmlDocument : public QObject {
    Q_OBJECT
public:
    explicit XmlDocument(QObject *parent = nullptr);
    ~XmlDocument() override;

    // Kept for the callers that switch it off; as no DTD is ever read there is
    // nothing to validate against either way.
    bool validateOnParse() const { return validateOnParse_; }
    void setValidateOnParse(bool on) { validateOnParse_ = on; }

    // Starts loading and returns at once. False when the source cannot even be
    // started (an unknown scheme, a file that is not there): the document is then
    // complete and empty straight away.
    bool load(const QString &source);

    int readyState() const { return readyState_; }

    // The document node, whose children are the top-level nodes. Empty until
    // state 4, and for good when the source failed or was not well-formed.
    const pugi::xml_document &document() const { return document_; }

    // Node count of the whole tree, as the walks number it.
    static int countNodes(const pugi::xml_node &parent);

    // Largest body read from the network: more is treated as a failed load.
    static constexpr qint64 kMaxBytes = 16 * 1024 * 1024;

Q_SIGNALS:
    void readyStateChanged(int state);

private:
    void advanceTo(int state);
    void finish(const QByteArray &data, bool ok);
    void startFileRead(const QString &path);
    void onReplyFinished();
    void dropReply();

    bool validateOnParse_ = true;
    int readyState_ = 0;
    pugi::xml_document document_;
    QNetworkAccessManager *network_ = nullptr;
    QPointer<QNetworkReply> reply_;
    QByteArray received_;
    int generation_ = 0;
};

} // namespace zafro
