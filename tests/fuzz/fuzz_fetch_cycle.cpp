// libFuzzer target: any bytes as the document of each user of the fetch cycle (news,
// rates, plates, plate file), through the load, both walks and the closing steps, with
// fake services. A walk may end in the platform's run-time error (a node without its
// attribute, a nesting past the guard), and in nothing else.

#include "online/fetch_cycle.h"
#include "platform/services.h"
#include "runtime/runtime_error.h"
#include "shell/language.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

namespace {

class QuietDialogs : public zafro::Dialogs {
public:
    int msgBox(const QString &, int, const QString &) override { return 1; }
    QString inputBox(const QString &, const QString &, const QString &defaultText) override
    {
        return defaultText;
    }
};

QuietDialogs dialogs;
QTemporaryDir *folder = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    folder = new QTemporaryDir;
    zafro::services().dialogs = &dialogs;
    zafro::CargarEspanol();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = folder->filePath(QStringLiteral("document.xml"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char *>(data), qint64(size));
    }
    for (auto kind : {zafro::FetchUserKind::News, zafro::FetchUserKind::Rates,
                      zafro::FetchUserKind::Plates, zafro::FetchUserKind::PlateFile}) {
        int rows = 0;
        zafro::FetchHooks hooks;
        hooks.storeRow = [&rows](const QString &, const QString &) { ++rows; };
        zafro::FetchCycle cycle(kind, hooks, nullptr);
        cycle.start(path);
        // The file read passes one ready state per turn of the event loop.
        for (int turn = 0; turn < 10 && cycle.readyState() != 4; ++turn)
            QCoreApplication::processEvents();
        try {
            cycle.settleTick();
            cycle.verifyTick();
            cycle.parseTick();
        } catch (const zafro::RuntimeError &) {
        }
        cycle.stop();
    }
    return 0;
}
