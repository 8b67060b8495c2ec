#include "platform/qt_services.h"

#include "platform/cd_door.h"
#include "runtime/classic_random.h"
#include "shell/application.h"
#include "shell/form.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>

#include <pulse/simple.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace zafro {

namespace {

QString titleOrDefault(const QString &title)
{
    return title.isEmpty() ? QStringLiteral("Zafro Suite") : title;
}

QMessageBox::Icon iconFor(int style)
{
    switch (style & 0x70) {
    case msg::Critical:
        return QMessageBox::Critical;
    case msg::Question:
        return QMessageBox::Question;
    case msg::Exclamation:
        return QMessageBox::Warning;
    case msg::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

struct ButtonSpec {
    QMessageBox::StandardButton button;
    int answer;
};

std::vector<ButtonSpec> buttonsFor(int style)
{
    switch (style & 7) {
    case msg::OkCancel:
        return {{QMessageBox::Ok, msg::Ok}, {QMessageBox::Cancel, msg::Cancel}};
    case msg::AbortRetryIgnore:
        return {{QMessageBox::Abort, msg::Abort},
                {QMessageBox::Retry, msg::Retry},
                {QMessageBox::Ignore, msg::Ignore}};
    case msg::YesNoCancel:
        return {{QMessageBox::Yes, msg::Yes},
                {QMessageBox::No, msg::No},
                {QMessageBox::Cancel, msg::Cancel}};
    case msg::YesNo:
        return {{QMessageBox::Yes, msg::Yes}, {QMessageBox::No, msg::No}};
    case msg::RetryCancel:
        return {{QMessageBox::Retry, msg::Retry}, {QMessageBox::Cancel, msg::Cancel}};
    default:
        return {{QMessageBox::Ok, msg::Ok}};
    }
}

} // namespace

int QtDialogs::msgBox(const QString &text, int style, const QString &title)
{
    QMessageBox box(iconFor(style), titleOrDefault(title), text);
    const auto buttons = buttonsFor(style);
    QMessageBox::StandardButtons set;
    for (const ButtonSpec &b : buttons)
        set |= b.button;
    box.setStandardButtons(set);
    const std::size_t defaultIndex = static_cast<std::size_t>((style >> 8) & 3);
    if (defaultIndex < buttons.size())
        box.setDefaultButton(buttons[defaultIndex].button);
    box.exec();
    const auto pressed = box.standardButton(box.clickedButton());
    for (const ButtonSpec &b : buttons)
        if (b.button == pressed)
            return b.answer;
    // Closed with Escape or the frame: Cancel where there is one, else the only answer.
    for (const ButtonSpec &b : buttons)
        if (b.answer == msg::Cancel)
            return msg::Cancel;
    return buttons.front().answer;
}

QString QtDialogs::inputBox(const QString &prompt, const QString &title, const QString &defaultText)
{
    bool ok = false;
    const QString text = QInputDialog::getText(nullptr, titleOrDefault(title), prompt,
                                               QLineEdit::Normal, defaultText, &ok);
    // Cancel gives empty text, as the original input box does.
    return ok ? text : QString();
}

void QtDesktop::openUrl(const QString &url)
{
    QDesktopServices::openUrl(QUrl::fromUserInput(url));
}

QString QtDesktop::clipboardText() const
{
    return QGuiApplication::clipboard()->text();
}

void QtDesktop::setClipboardText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

bool QtDesktop::fileExists(const QString &path) const
{
    return QFileInfo::exists(path);
}

void QtDesktop::deleteFile(const QString &path)
{
    QFile::remove(path);
}

QString QtDesktop::programFolder() const
{
    return QCoreApplication::applicationDirPath();
}

QString QtDesktop::programFileName() const
{
    return QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
}

QString QtDesktop::dataFile(const QString &name) const
{
    // The build tree keeps the data beside the program; an installed copy keeps it
    // under share/, found relative to the program so that any prefix works, and then
    // along the XDG data folders.
    const QString beside = programFolder() + u'/' + name;
    if (QFileInfo::exists(beside))
        return beside;
    const QString installed =
        QDir::cleanPath(programFolder() + u'/' + QStringLiteral(ZAFRO_DATA_FROM_BIN) + u'/' + name);
    if (QFileInfo::exists(installed))
        return installed;
    const QString elsewhere = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                     QStringLiteral("zafro/") + name);
    return elsewhere.isEmpty() ? installed : elsewhere;
}

QSize QtDesktop::screenSizeTwips() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize px = screen ? screen->size() : QSize(1280, 960);
    return {px.width() * twipsPerPixelX(), px.height() * twipsPerPixelY()};
}

QPoint QtDesktop::cursorPos() const
{
    return QCursor::pos();
}

void QtDesktop::cdDoor(const QString &command)
{
    runCdDoor(cdDoorAction(command));
}

void QtDesktop::endProgram(int status)
{
    if (Application *app = Application::instance())
        app->endProgram(status);
    else
        QCoreApplication::exit(status);
}

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

qint32 SystemClock::tickCount() const
{
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    const auto ms = static_cast<std::uint64_t>(ts.tv_sec) * 1000u +
                    static_cast<std::uint64_t>(ts.tv_nsec) / 1000000u;
    // Milliseconds since start in 32 bits, wrapping into negative numbers.
    return static_cast<qint32>(static_cast<std::uint32_t>(ms));
}

float SystemClock::timer() const
{
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000.0f;
}

void PulseSound::beep(int frequency, int milliseconds)
{
    if (milliseconds <= 0)
        return;
    constexpr int rate = 44100;
    const pa_sample_spec sampleFormat{PA_SAMPLE_S16LE, rate, 1};
    int error = 0;
    pa_simple *stream = pa_simple_new(nullptr, "Zafro Suite", PA_STREAM_PLAYBACK, nullptr, "beep",
                                      &sampleFormat, nullptr, nullptr, &error);
    if (!stream) {
        // No sound server: silent, but the caller still waits as long as the tone lasts.
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        return;
    }
    const std::size_t samples = static_cast<std::size_t>(rate) * milliseconds / 1000;
    std::vector<qint16> wave(samples);
    const double step = 2.0 * M_PI * frequency / rate;
    for (std::size_t i = 0; i < samples; ++i)
        wave[i] = static_cast<qint16>(std::lround(12000.0 * std::sin(step * double(i))));
    pa_simple_write(stream, wave.data(), wave.size() * sizeof(qint16), &error);
    pa_simple_drain(stream, &error);
    pa_simple_free(stream);
}

namespace {

quint32 readLe(const QByteArray &data, qsizetype at, int bytes)
{
    quint32 value = 0;
    for (int i = bytes - 1; i >= 0; --i)
        value = (value << 8) | static_cast<quint8>(data.at(at + i));
    return value;
}

// Plays an uncompressed PCM WAV image; anything else (an empty buffer included)
// is silently ignored, as the platform call does.
void playWave(const QByteArray &wav)
{
    if (wav.size() < 12 || !wav.startsWith("RIFF") || wav.mid(8, 4) != "WAVE")
        return;
    pa_sample_spec sampleFormat{};
    bool haveFormat = false;
    for (qsizetype at = 12; at + 8 <= wav.size();) {
        const QByteArray id = wav.mid(at, 4);
        const qsizetype size = readLe(wav, at + 4, 4);
        const qsizetype body = at + 8;
        if (size > wav.size() - body)
            return;
        if (id == "fmt " && size >= 16) {
            const quint32 bits = readLe(wav, body + 14, 2);
            if (readLe(wav, body, 2) != 1 || (bits != 8 && bits != 16))
                return;
            sampleFormat.format = bits == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE;
            sampleFormat.channels = static_cast<uint8_t>(readLe(wav, body + 2, 2));
            sampleFormat.rate = readLe(wav, body + 4, 4);
            haveFormat = pa_sample_spec_valid(&sampleFormat);
        } else if (id == "data" && haveFormat) {
            int error = 0;
            pa_simple *stream = pa_simple_new(nullptr, "Zafro Suite", PA_STREAM_PLAYBACK, nullptr,
                                              "sound", &sampleFormat, nullptr, nullptr, &error);
            if (!stream)
                return;
            pa_simple_write(stream, wav.constData() + body, static_cast<size_t>(size), &error);
            pa_simple_drain(stream, &error);
            pa_simple_free(stream);
            return;
        }
        at = body + size + (size & 1);
    }
}

} // namespace

void PulseSound::playSound(const QString &buffer, int flags)
{
    constexpr int memoryFlag = 4;
    if (buffer.isEmpty())
        return;
    if (flags & memoryFlag) {
        playWave(buffer.toLatin1());
        return;
    }
    QFile file(buffer);
    if (file.open(QIODevice::ReadOnly))
        playWave(file.readAll());
}

void installQtServices()
{
    static QtDialogs dialogs;
    static QtDesktop desktop;
    static SystemClock clock;
    static PulseSound sound;
    static ClassicRandom random;
    services() = Services{&dialogs, &desktop, &clock, &sound, &random};
}

} // namespace zafro
