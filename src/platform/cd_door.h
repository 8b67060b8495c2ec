#pragma once

// The CD door of the media command "set Cdaudio door open|closed": the default
// optical drive's tray, driven through the CD-ROM ioctls on a worker thread, since
// the call can block while the tray moves. Without a drive nothing happens.

#include <QString>

namespace zafro {

enum class CdDoorAction { None, Open, Close };

// What a media command asks of the door; commands compare without regard to case
// or extra blanks, as the media command interface reads them.
CdDoorAction cdDoorAction(const QString &command);

// Queues the action for the drive, in order; returns at once.
void runCdDoor(CdDoorAction action);

} // namespace zafro
