#include "online/fetch_cycle.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/runtime_error.h"
#include "shell/language.h"
#include "shell/product.h"

#include <QTimer>

namespace zafro {

namespace {

constexpr int kPollMs = 10;
constexpr int kSettleMs = 1000;
constexpr int kVerifyMs = 1000;
constexpr int kParseMs = 100;

// Far beyond any document the suite reads; a deeper one ends like a recursion
// without end would.
constexpr int kMaxDepth = 10000;

const QString kLineBreak = QStringLiteral("\r\n");

// The plate counts, whether fetched by the plates window or imported from a file.
constexpr FetchUser platesUser(const char *window)
{
    return {window,      "Timern2", "Timern4",           "Timern5", "Timern3",
            "Commandn1", "Labeln9", "Labeln3",           "Textn2",  false,
            11,          "zafro",   u"Matriculas Zafro", 12,        {"mes", "coches"},
            true,        true};
}

const FetchUser kUsers[] = {
    // News
    {"index",
     "Timern2",
     "Timern4",
     "Timern5",
     "Timern3",
     "Commandn1",
     "Labeln9",
     "Labeln3",
     "Textn2",
     true,
     11,
     "zafro",
     u"Zafro Software",
     12,
     {"fecha", "noticia"},
     true,
     true},
    // Rates
    {"divisasact",
     "Timer2",
     "Timer4",
     "Timer5",
     "Timer3",
     "Command1",
     "Label9",
     "",
     "",
     true,
     14,
     "currency",
     u"DKK",
     10,
     {"currency", "rate"},
     false,
     false},
    platesUser("matriculasselect"),
    // The same document from a file, read by the import window.
    platesUser("matimportacion"),
};

QTimer *makeCycleTimer(QObject *owner, const char *name, int intervalMs, bool enabled,
                       std::function<void()> onTick)
{
    auto *timer = new QTimer(owner);
    timer->setObjectName(QLatin1String(name));
    timer->setInterval(intervalMs);
    QObject::connect(timer, &QTimer::timeout, owner, std::move(onTick));
    if (enabled)
        timer->start();
    return timer;
}

void enable(QTimer *timer)
{
    // Enabling a running timer leaves its period alone.
    if (!timer->isActive())
        timer->start();
}

} // namespace

QString contactoMantenimiento()
{
    return QString::fromUtf16(product::kEmails[0]);
}

namespace {
QString sourceAddresses[3];

QString sourceOr(FetchUserKind kind, const QString &built)
{
    const QString &address = sourceAddresses[static_cast<int>(kind)];
    return address.isEmpty() ? built : address;
}
} // namespace

void setSourceAddress(FetchUserKind kind, const QString &address)
{
    if (kind != FetchUserKind::PlateFile)
        sourceAddresses[static_cast<int>(kind)] = address;
}

QString newsSource()
{
    return sourceOr(FetchUserKind::News,
                    QStringLiteral(ZAFRO_SERVER_URL "/tirsamontes/news/noticias45.xml"));
}

QString ratesSource()
{
    return sourceOr(FetchUserKind::Rates, QStringLiteral(ZAFRO_RATES_URL));
}

QString platesSource()
{
    return sourceOr(FetchUserKind::Plates,
                    QStringLiteral(ZAFRO_SERVER_URL "/tirsamontes/matriculas4525.xml"));
}

const FetchUser &fetchUser(FetchUserKind kind)
{
    return kUsers[static_cast<int>(kind)];
}

QString attributeText(const pugi::xml_node &node, const char *name)
{
    const pugi::xml_attribute attribute =
        node.type() == pugi::node_element ? node.attribute(name) : pugi::xml_attribute();
    if (!attribute)
        throw RuntimeError(91, QStringLiteral("Variable de objeto o bloque With no establecido"));
    return QString::fromUtf8(attribute.value());
}

FetchCycle::FetchCycle(FetchUserKind kind, FetchHooks hooks, QObject *parent)
    : QObject(parent), user_(fetchUser(kind)), hooks_(std::move(hooks)),
      poll_(makeCycleTimer(this, user_.pollTimer, kPollMs, user_.pollRunningAtDesign,
                           [this] { pollTick(); })),
      settle_(makeCycleTimer(this, user_.settleTimer, kSettleMs, false, [this] { settleTick(); })),
      verify_(makeCycleTimer(this, user_.verifyTimer, kVerifyMs, false, [this] { verifyTick(); })),
      parse_(makeCycleTimer(this, user_.parseTimer, kParseMs, false, [this] { parseTick(); }))
{
    setObjectName(QStringLiteral("fetchCycle"));
}

QString FetchCycle::statusText(int state)
{
    switch (state) {
    case 0:
        return texto(slot::EstadoNoConectado);
    case 1:
        return texto(slot::EstadoConectando);
    case 2:
        return texto(slot::EstadoConexionEstablecida);
    case 3:
        return texto(slot::EstadoConectandoCon);
    default:
        return texto(slot::EstadoDesconocido);
    }
}

QString FetchCycle::failureText()
{
    return kLineBreak + kLineBreak + texto(slot::NoticiasSinConexion) + kLineBreak + kLineBreak +
           texto(slot::ComunicanosElFallo) + kLineBreak + contactoMantenimiento();
}

void FetchCycle::setStatus(const QString &text) const
{
    if (hooks_.setStatus)
        hooks_.setStatus(text);
}

void FetchCycle::setConsole(const QString &text) const
{
    if (hooks_.setConsole)
        hooks_.setConsole(text);
}

void FetchCycle::setGoEnabled(bool on) const
{
    if (hooks_.setGoEnabled)
        hooks_.setGoEnabled(on);
}

void FetchCycle::start(const QString &source)
{
    enable(poll_);
    contador_ = QStringLiteral("0");
    setConsole(kLineBreak + kLineBreak + texto(slot::ConectandoNoticias));
    // The old document goes at once: nothing but the poll ever looks at it.
    delete document_;
    currentNode_ = pugi::xml_node();
    document_ = new XmlDocument(this);
    document_->setValidateOnParse(false);
    if (!document_->load(source))
        setConsole(failureText());
}

void FetchCycle::pollTick()
{
    const int state = readyState();
    if (state == 4) {
        enable(settle_);
        poll_->stop();
        return;
    }
    setStatus(statusText(state));
}

int FetchCycle::nextPosition()
{
    // The position is kept as text, as the windows have always kept it.
    const int position = static_cast<int>(Val(contador_)) + 1;
    contador_ = CStr(position);
    return position;
}

void FetchCycle::settleTick()
{
    settle_->stop();
    if (document_)
        identityWalk(document_->document(), 0);
}

void FetchCycle::identityWalk(const pugi::xml_node &parent, int depth)
{
    if (depth > kMaxDepth)
        throw RuntimeError::outOfStackSpace();
    for (const pugi::xml_node &node : parent.children()) {
        currentNode_ = node;
        if (nextPosition() == user_.identityPosition) {
            identidad_ = attributeText(node, user_.identityAttribute);
            if (hooks_.setIdentity)
                hooks_.setIdentity(identidad_);
            enable(verify_);
        }
        if (node.first_child())
            identityWalk(node, depth + 1);
    }
}

void FetchCycle::verifyTick()
{
    verify_->stop();
    if (identidad_ != QString::fromUtf16(user_.expected)) {
        setGoEnabled(user_.goEnabledOnReject);
        setStatus(texto(slot::EstadoNoConectado));
        services().dialogs->msgBox(texto(slot::ConexionImposible), 0, QString());
        setConsole(failureText());
        return;
    }
    setGoEnabled(true);
    setStatus(texto(slot::ConexionEstablecida));
    if (user_.goAtOnce) {
        setConsole(QString());
        go();
        return;
    }
    services().dialogs->msgBox(texto(slot::ConexionCorrecta), 0, QString());
}

void FetchCycle::go()
{
    if (readyState() != 4) {
        services().dialogs->msgBox(texto(slot::SinConexionTodavia) + contactoMantenimiento(), 0,
                                   QString());
        return;
    }
    if (hooks_.beforeParse)
        hooks_.beforeParse();
    enable(parse_);
}

void FetchCycle::parseTick()
{
    // Off first: the closing work may show a message box, and timers go on
    // ticking behind one.
    parse_->stop();
    if (hooks_.beforeWalk)
        hooks_.beforeWalk();
    contador_ = QStringLiteral("0");
    if (document_)
        dataWalk(document_->document(), 0);
    if (hooks_.closingWork)
        hooks_.closingWork();
}

void FetchCycle::dataWalk(const pugi::xml_node &parent, int depth)
{
    if (depth > kMaxDepth)
        throw RuntimeError::outOfStackSpace();
    for (const pugi::xml_node &node : parent.children()) {
        currentNode_ = node;
        if (nextPosition() >= user_.dataFrom) {
            const QString first = attributeText(node, user_.dataAttributes[0]);
            const QString second = attributeText(node, user_.dataAttributes[1]);
            if (hooks_.storeRow)
                hooks_.storeRow(first, second);
        }
        if (node.first_child())
            dataWalk(node, depth + 1);
    }
    if (hooks_.levelEnd)
        hooks_.levelEnd();
}

void FetchCycle::stop()
{
    for (QTimer *timer : {poll_, settle_, verify_, parse_})
        timer->stop();
}

} // namespace zafro
