// The exceptions of the package. The host's event loop catches them once and shows Message.
//
//     throw EConvertError(QStringLiteral("'%1' não é um número válido.").arg(text));
//     ...
//     catch (const Exception& e) { Show(e.Message); }
//
// Texts a user may see are Portuguese; texts for developers (a form wired wrongly) are English.
#pragma once
#include <exception>
#include "platform/rtl/Types.h"

class Exception : public std::exception {
  public:
    explicit Exception(const UnicodeString& message) : Message(message), FUtf8(message.toUtf8()) {}
    const char* what() const noexcept override { return FUtf8.constData(); }

    UnicodeString Message;

  private:
    QByteArray FUtf8;
};

// Ends the running action silently: the event loop shows nothing.
class EAbort : public Exception {
  public:
    EAbort();
};

// A text that is not the value it should be, or a value that does not fit its type.
class EConvertError : public Exception {
    using Exception::Exception;
};

// A failed call of the operating system.
class EOSError : public Exception {
  public:
    EOSError(const UnicodeString& message, int errorCode) : Exception(message), ErrorCode(errorCode) {}

    // The system's own number (errno).
    int ErrorCode;
};

// A file that cannot be read or written; Message names the file and the cause.
class EInOutError : public EOSError {
    using EOSError::EOSError;
};

class EMathError : public Exception {
    using Exception::Exception;
};

class EZeroDivide : public EMathError {
    using EMathError::EMathError;
};

// A picture, icon or text that the program's resources do not hold.
class EResNotFound : public Exception {
    using Exception::Exception;
};

// A call that the object's state does not allow.
class EInvalidOperation : public Exception {
    using Exception::Exception;
};

// Throws EAbort.
[[noreturn]] void Abort();
