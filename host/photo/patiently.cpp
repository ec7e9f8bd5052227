#include "patiently.h"

#include <exception>
#include <thread>

#include <QApplication>
#include <QEventLoop>
#include <QThread>

#include "inWindow.h"

void patiently(const std::function<void()> &work)
{
    if (!inWindow() || QThread::currentThread() != qApp->thread()) {
        work();
        return;
    }
    std::exception_ptr failure;
    QEventLoop loop;
    std::thread worker([&] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    QApplication::setOverrideCursor(Qt::BusyCursor);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    QApplication::restoreOverrideCursor();
    worker.join();
    if (failure)
        std::rethrow_exception(failure);
}
