#pragma once

#include <QMutex>

#if defined(__has_feature)
#    if __has_feature(thread_sanitizer)
#        include <sanitizer/tsan_interface.h>
#        define NIMBRA_THREAD_SANITIZER
#    endif
#endif

/// Holds a Qt mutex for a scope and reports it to ThreadSanitizer, which can't see the locks of a Qt that was built without it.
class HandOverLocker
{
public:
    explicit HandOverLocker(QMutex &mutexToHold) : mutex(mutexToHold)
    {
        mutex.lock();
#ifdef NIMBRA_THREAD_SANITIZER
        __tsan_acquire(&mutex);
#endif
    }
    ~HandOverLocker()
    {
#ifdef NIMBRA_THREAD_SANITIZER
        __tsan_release(&mutex);
#endif
        mutex.unlock();
    }
    HandOverLocker(const HandOverLocker &) = delete;
    HandOverLocker &operator=(const HandOverLocker &) = delete;

private:
    QMutex &mutex;
};
