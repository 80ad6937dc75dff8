// A lock that programs of one user know by its name, and that ends with its holder, however that ends.
//
//     TNamedMutex mutex(u"VREN_IMPART"_s);
//     if (mutex.TryLock()) …                // nobody held it; held until Unlock or the object's end
#pragma once

#include "platform/rtl/Types.h"

class TNamedMutex {
  public:
    // Opens or makes it, without taking it. Any name; case counts. EInOutError.
    explicit TNamedMutex(const UnicodeString& name);
    ~TNamedMutex();
    TNamedMutex(const TNamedMutex&) = delete;
    TNamedMutex& operator=(const TNamedMutex&) = delete;

    // Takes it when nobody else holds it; never waits.
    bool TryLock();
    void Unlock();

  private:
    int FHandle;
};
