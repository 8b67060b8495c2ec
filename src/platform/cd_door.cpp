#include "platform/cd_door.h"

#include <QStringList>
#include <QThreadPool>

#include <fcntl.h>
#include <linux/cdrom.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace zafro {

namespace {

void driveTray(CdDoorAction action)
{
    for (const char *device : {"/dev/cdrom", "/dev/sr0"}) {
        // Non-blocking, so that an empty drive still opens.
        const int fd = ::open(device, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0)
            continue;
        // Results are not looked at, as the media command's never were.
        (void)::ioctl(fd, action == CdDoorAction::Open ? CDROMEJECT : CDROMCLOSETRAY, 0);
        ::close(fd);
        return;
    }
}

// One worker: an open and the close that follows it reach the drive in order. The
// pool waits for a tray still moving when the program ends.
QThreadPool &doorWorker()
{
    static QThreadPool pool;
    static const bool once = [] {
        pool.setMaxThreadCount(1);
        pool.setExpiryTimeout(1000);
        return true;
    }();
    (void)once;
    return pool;
}

} // namespace

CdDoorAction cdDoorAction(const QString &command)
{
    const QStringList words = command.simplified().toLower().split(QLatin1Char(' '));
    if (words.size() != 4 || words[0] != QLatin1String("set") ||
        words[1] != QLatin1String("cdaudio") || words[2] != QLatin1String("door"))
        return CdDoorAction::None;
    if (words[3] == QLatin1String("open"))
        return CdDoorAction::Open;
    if (words[3] == QLatin1String("closed"))
        return CdDoorAction::Close;
    return CdDoorAction::None;
}

void runCdDoor(CdDoorAction action)
{
    if (action == CdDoorAction::None)
        return;
    doorWorker().start([action] { driveTray(action); });
}

} // namespace zafro
