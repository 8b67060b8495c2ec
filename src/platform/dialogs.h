#pragma once

#include <QString>

namespace zafro {

// Message and input boxes. Every window goes through this seam so that tests can
// answer the boxes and nothing blocks on a display.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // style: the message box style number (0 plain, 16 critical, 32 question,
    // 48 exclamation, 64 information, plus the button codes);
    // returns the answer code (1 OK, 2 Cancel, 6 Yes, 7 No, ...)
    virtual int msgBox(const QString &text, int style, const QString &title) = 0;
    virtual QString inputBox(const QString &prompt, const QString &title,
                             const QString &defaultText) = 0;
};

// Button sets and answers of msgBox, with the classic numbering.
namespace msg {
inline constexpr int OkOnly = 0;
inline constexpr int OkCancel = 1;
inline constexpr int AbortRetryIgnore = 2;
inline constexpr int YesNoCancel = 3;
inline constexpr int YesNo = 4;
inline constexpr int RetryCancel = 5;
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;

inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Abort = 3;
inline constexpr int Retry = 4;
inline constexpr int Ignore = 5;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
} // namespace msg

} // namespace zafro
