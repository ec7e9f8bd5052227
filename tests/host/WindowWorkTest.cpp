#include "WindowWorkTest.h"

#include <cmath>

#include <QApplication>
#include <QTimer>
#include <gtest/gtest.h>

#include "HostApplication.h"

bool eventually(const std::function<bool()> &holds)
{
    bool late = false;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, [&] { late = true; });
    limit.start(120000);
    while (!late && !holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return !late;
}

PictureRequest requestOf(const std::shared_ptr<const OpenPhoto> &photo, int strength, double scale)
{
    PictureRequest request;
    request.photo = photo;
    request.size = QSize(int(std::ceil(photo->width() * scale)), int(std::ceil(photo->height() * scale)));
    request.scale = scale;
    request.strength = strength;
    return request;
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const HostedApplication<QApplication> application(argc, argv, QLocale(QLocale::English), /*lendServices=*/true);
    return RUN_ALL_TESTS();
}
