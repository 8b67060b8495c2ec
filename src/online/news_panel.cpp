#include "online/news_panel.h"

#include "shell/controls.h"
#include "shell/form.h"
#include "shell/language.h"

#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>

namespace zafro {

namespace {

const QColor kWhite(0xFF, 0xFF, 0xFF); // 0xFFFFFF
const QColor kRed(0xFF, 0x00, 0x00);   // 255

// The launcher's design pixels.
QRect px(int left, int top, int width, int height)
{
    return twipsRect(left * 15, top * 15, width * 15, height * 15);
}

// The arrows' column, beside the frame; each arrow is a shaft and a head of two lines.
constexpr int kArrowX = 346, kArrowW = 20, kUpY = 104, kDownY = 254, kArrowH = 46;

} // namespace

NewsLine::NewsLine(QWidget *parent, const QString &name, QPoint from, QPoint to)
    : QWidget(parent), from_(from), to_(to)
{
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const QRect box = px(std::min(from.x(), to.x()), std::min(from.y(), to.y()),
                         std::abs(to.x() - from.x()) + 1, std::abs(to.y() - from.y()) + 1);
    setGeometry(box.adjusted(-1, -1, 1, 1));
}

void NewsLine::setColour(const QColor &colour)
{
    if (colour_ == colour)
        return;
    colour_ = colour;
    update();
}

void NewsLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour_, 2, Qt::SolidLine, Qt::RoundCap));
    const auto at = [this](QPoint p) { return px(p.x(), p.y(), 0, 0).topLeft() - pos(); };
    painter.drawLine(at(from_), at(to_));
}

NewsPanel::NewsPanel(QWidget *launcher) : QObject(launcher), launcher_(launcher)
{
    setObjectName(QStringLiteral("newsPanel"));
    picture1_ = new QWidget(launcher);
    picture1_->setObjectName(QStringLiteral("Picture1"));
    picture1_->setGeometry(px(368, 102, 376, 200));
    picture1_->setAutoFillBackground(true);
    QPalette frame = picture1_->palette();
    frame.setColor(QPalette::Window, QColor(0x06, 0x1A, 0x30));
    picture1_->setPalette(frame);

    textn2_ = place(new QPlainTextEdit(picture1_), "Textn2", 240, kNoticiasTopInicial, 5400,
                    kNoticiasAltura);
    textn2_->setReadOnly(true);
    textn2_->setFrameShape(QFrame::NoFrame);
    textn2_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    textn2_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    textn2_->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette ink = textn2_->palette();
    ink.setColor(QPalette::Base, QColor(0x06, 0x1A, 0x30));
    ink.setColor(QPalette::Text, QColor(0xE8, 0xEE, 0xF5));
    textn2_->setPalette(ink);

    const auto hotArea = [&](const char *name, int top) {
        auto *image = new ClickLabel(launcher, QLatin1String(name));
        image->setGeometry(px(kArrowX - 4, top, kArrowW + 8, kArrowH));
        image->setMouseTracking(true);
        image->setEnabled(false); // nothing scrolls before a document is in
        return image;
    };
    image1_ = hotArea("Image1", kUpY);
    image2_ = hotArea("Image2", kDownY);
    connect(image1_, &ClickLabel::mouseMoved, this, &NewsPanel::image1MouseMove);
    connect(image2_, &ClickLabel::mouseMoved, this, &NewsPanel::image2MouseMove);

    const int mid = kArrowX + kArrowW / 2;
    const int upBottom = kUpY + kArrowH - 4, downBottom = kDownY + kArrowH - 4;
    lines_[0] = new NewsLine(launcher, QStringLiteral("Line1"), {mid, kUpY + 4}, {mid, upBottom});
    lines_[1] =
        new NewsLine(launcher, QStringLiteral("Line2"), {mid, kUpY + 4}, {kArrowX + 2, kUpY + 16});
    lines_[2] = new NewsLine(launcher, QStringLiteral("Line3"), {mid, kUpY + 4},
                             {kArrowX + kArrowW - 2, kUpY + 16});
    lines_[3] =
        new NewsLine(launcher, QStringLiteral("Line4"), {mid, kDownY + 4}, {mid, downBottom});
    lines_[4] = new NewsLine(launcher, QStringLiteral("Line5"), {mid, downBottom},
                             {kArrowX + 2, downBottom - 12});
    lines_[5] = new NewsLine(launcher, QStringLiteral("Line6"), {mid, downBottom},
                             {kArrowX + kArrowW - 2, downBottom - 12});

    labeln1_ = new QLabel(QStringLiteral("Variable altura..."), launcher);
    labeln1_->setObjectName(QStringLiteral("Labeln1"));
    labeln1_->setGeometry(px(600, 380, 140, 14));
    labeln1_->hide();
    labeln9_ = new QLabel(launcher);
    labeln9_->setObjectName(QStringLiteral("Labeln9"));
    labeln9_->setGeometry(px(368, 380, 220, 14));
    for (QLabel *label : {labeln1_, labeln9_}) {
        QPalette p = label->palette();
        p.setColor(QPalette::WindowText, QColor(0x9F, 0xB8, 0xD3));
        label->setPalette(p);
    }
    labeln3_ = new QLabel(launcher);
    labeln3_->setObjectName(QStringLiteral("Labeln3"));
    labeln3_->hide();

    const auto hiddenButton = [&](const char *name, const QString &caption) {
        auto *b = new QPushButton(caption, launcher);
        b->setObjectName(QLatin1String(name));
        b->hide();
        return b;
    };
    commandn1_ = hiddenButton("Commandn1", QStringLiteral("Actualizar noticias"));
    connect(hiddenButton("Commandn4", QStringLiteral("^")), &QPushButton::clicked, this,
            &NewsPanel::commandn4Click);
    connect(hiddenButton("Commandn5", QStringLiteral("v")), &QPushButton::clicked, this,
            &NewsPanel::commandn5Click);

    timern14_ =
        makeTimer(this, QStringLiteral("Timern14"), 50, false, [this] { commandn4Click(); });
    timern15_ =
        makeTimer(this, QStringLiteral("Timern15"), 50, false, [this] { commandn5Click(); });

    FetchHooks hooks;
    hooks.setStatus = [this](const QString &t) { labeln9_->setText(t); };
    hooks.setIdentity = [this](const QString &t) { labeln3_->setText(t); };
    hooks.setConsole = [this](const QString &t) {
        text_ = t;
        textn2_->setPlainText(t);
    };
    hooks.setGoEnabled = [this](bool on) { commandn1_->setEnabled(on); };
    hooks.storeRow = [this](const QString &fecha, const QString &noticia) {
        text_ += itemNoticia(fecha, noticia);
        textn2_->setPlainText(text_);
    };
    hooks.levelEnd = [this] {
        if (cycle_->document())
            limite_.walk(cycle_->document()->document());
    };
    hooks.closingWork = [this] { closingWork(); };
    cycle_ = new FetchCycle(FetchUserKind::News, std::move(hooks), this);
    connect(commandn1_, &QPushButton::clicked, cycle_, &FetchCycle::go);
}

void NewsPanel::start()
{
    image1_->setToolTip(QLatin1Char(' ') + texto(slot::Subir) + QLatin1Char(' '));
    image2_->setToolTip(QLatin1Char(' ') + texto(slot::Bajar) + QLatin1Char(' '));
    cycle_->start(newsSource());
}

void NewsPanel::closingWork()
{
    image1_->setEnabled(true);
    image2_->setEnabled(true);
    arrowUp(false);
    arrowDown(true);
}

void NewsPanel::arrowUp(bool on)
{
    for (int i = 0; i < 3; ++i)
        lines_[i]->setVisible(on);
    image1_->setVisible(on);
}

void NewsPanel::arrowDown(bool on)
{
    for (int i = 3; i < 6; ++i)
        lines_[i]->setVisible(on);
    image2_->setVisible(on);
}

void NewsPanel::paint(int first, const QColor &colour)
{
    for (int i = first; i < first + 3; ++i)
        lines_[i]->setColour(colour);
}

void NewsPanel::setTop(int twips)
{
    topTwips_ = twips;
    textn2_->setGeometry(twipsRect(240, topTwips_, 5400, heightTwips_));
    labeln1_->setText(QString::number(topTwips_));
}

void NewsPanel::image1MouseMove()
{
    timern14_->start();
    timern15_->stop();
    paint(0, kRed);
}

void NewsPanel::image2MouseMove()
{
    timern14_->stop();
    timern15_->start();
    heightTwips_ = static_cast<int>(kNoticiasAltura - limite_.limiteNumero());
    textn2_->setGeometry(twipsRect(240, topTwips_, 5400, heightTwips_));
    paint(3, kRed);
}

void NewsPanel::commandn4Click()
{
    const PasoNoticias paso = pasoSubir(topTwips_, limite_.limiteNumero());
    arrowUp(*paso.flechaSubir);
    if (paso.movido)
        setTop(paso.top);
    arrowDown(*paso.flechaBajar);
    paint(3, kWhite);
}

void NewsPanel::commandn5Click()
{
    const PasoNoticias paso = pasoBajar(topTwips_, limite_.limiteNumero());
    arrowUp(*paso.flechaSubir);
    if (paso.movido)
        setTop(paso.top);
    if (paso.flechaBajar)
        arrowDown(*paso.flechaBajar);
    paint(0, kWhite);
}

void NewsPanel::command5Click()
{
    paint(0, kWhite);
    paint(3, kWhite);
}

void NewsPanel::surfaceMoved()
{
    timern14_->stop();
    timern15_->stop();
    command5Click();
}

void NewsPanel::sinLimite()
{
    limite_.setLimite(QStringLiteral("-1000000"));
}

} // namespace zafro
