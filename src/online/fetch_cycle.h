#pragma once

// The fetch cycle shared by every window that takes online data.
//
//   start ─► poll (10 ms) until ready state 4 ─► settle (1 s, once): identity walk
//         ─► verify (1 s, once): compare ─► go ─► parse (100 ms, once): data walk
//
// There is no time-out and no parse error check: a source that never completes
// keeps the poll running, and one that completes without a node at the identity
// position leaves the cycle waiting for good without a word. Both walks count
// every node of the document depth-first, from 1, and run to its end.

#include "online/xml_document.h"

#include <QObject>
#include <QString>

#include <functional>

class QTimer;

namespace zafro {

// The maintainers' address that ends the failure texts.
QString contactoMantenimiento();

enum class FetchUserKind { News, Rates, Plates, PlateFile };

// Where each user of the cycle takes its document from.
QString newsSource();
QString ratesSource();
QString platesSource();
// Points a user of the cycle at another address (tests, a mirror of the feed);
// an empty address goes back to the build's own.
void setSourceAddress(FetchUserKind kind, const QString &address);

// What differs from one user of the cycle to another.
struct FetchUser {
    const char *window;
    const char *pollTimer;
    const char *settleTimer;
    const char *verifyTimer;
    const char *parseTimer;
    const char *goButton;
    const char *statusLabel;
    const char *identityLabel; // empty where the window has none
    const char *console;       // empty where the cycle writes no console
    bool pollRunningAtDesign;
    int identityPosition;
    const char *identityAttribute;
    const char16_t *expected;
    int dataFrom;
    const char *dataAttributes[2];
    // After a good check the go step runs at once, or the user is told and presses it.
    bool goAtOnce;
    // Whether the go button is left enabled after a failed check.
    bool goEnabledOnReject;
};

const FetchUser &fetchUser(FetchUserKind kind);

// How the cycle reaches its window. Every member may be left empty where the
// window has no such control or step.
struct FetchHooks {
    std::function<void(const QString &)> setStatus;
    std::function<void(const QString &)> setIdentity;
    std::function<void(const QString &)> setConsole;
    std::function<void(bool)> setGoEnabled;
    // The user's own step between a go at state 4 and the parse timer.
    std::function<void()> beforeParse;
    // Runs at the parse tick before the data walk.
    std::function<void()> beforeWalk;
    // One data row, both attributes read; a row is never handed over half read.
    std::function<void(const QString &, const QString &)> storeRow;
    // Runs as each call of the data walk ends, at every level of recursion.
    std::function<void()> levelEnd;
    // Runs after a data walk that reached the end of the document.
    std::function<void()> closingWork;
};

class FetchCycle : public QObject {
    Q_OBJECT
public:
    // The timers are made under the user's names; the poll runs from here where
    // the window has it running at design.
    FetchCycle(FetchUserKind kind, FetchHooks hooks, QObject *parent);

    const FetchUser &user() const { return user_; }

    // Starts a fetch of the source, replacing any document; timers already running
    // keep running against the new one.
    void start(const QString &source);
    // The go button's step.
    void go();

    void pollTick();
    void settleTick();
    void verifyTick();
    void parseTick();

    // Stops every timer (the window is going away).
    void stop();

    int readyState() const { return document_ ? document_->readyState() : 0; }
    XmlDocument *document() const { return document_; }
    QString contador() const { return contador_; }
    void setContador(const QString &value) { contador_ = value; }
    QString identidad() const { return identidad_; }
    // The node the walk is on: one for the cycle, not one per recursion level.
    pugi::xml_node currentNode() const { return currentNode_; }

    QTimer *pollTimer() const { return poll_; }
    QTimer *settleTimer() const { return settle_; }
    QTimer *verifyTimer() const { return verify_; }
    QTimer *parseTimer() const { return parse_; }

    // The poll's status text for a ready state.
    static QString statusText(int state);
    // The console's text when the server cannot be reached.
    static QString failureText();

private:
    void identityWalk(const pugi::xml_node &parent, int depth);
    void dataWalk(const pugi::xml_node &parent, int depth);
    int nextPosition();
    void setStatus(const QString &text) const;
    void setConsole(const QString &text) const;
    void setGoEnabled(bool on) const;

    const FetchUser &user_;
    FetchHooks hooks_;
    XmlDocument *document_ = nullptr;
    QString contador_ = QStringLiteral("0");
    QString identidad_;
    pugi::xml_node currentNode_;
    QTimer *poll_;
    QTimer *settle_;
    QTimer *verify_;
    QTimer *parse_;
};

// The text of a node's attribute. A node without it (or one that has no
// attributes at all, such as a text node or a comment) is the run-time error of
// an attribute look-up that found nothing.
QString attributeText(const pugi::xml_node &node, const char *name);

} // namespace zafro
