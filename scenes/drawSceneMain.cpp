#include "drawScene.h"

#include <QString>
#include <QStringList>

#include <cstdio>

namespace {
constexpr int kUsage = 2;
constexpr int kQuality = 95;
} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    bool haze = true;
    for (int i = 1; i < argc; ++i) {
        const QString word = QString::fromLocal8Bit(argv[i]);
        if (word == QLatin1String("--clear"))
            haze = false;
        else
            words << word;
    }
    bool sizeIsGood = words.size() == 1 || words.size() == 3;
    int width = 1200, height = 800;
    if (words.size() == 3) {
        width = words.at(1).toInt();
        height = words.at(2).toInt();
        sizeIsGood = width > 0 && height > 0 && width <= 32767 && height <= 32767;
    }
    if (!sizeIsGood) {
        std::fprintf(stderr, "Usage: draw_scene [--clear] OUT.jpg|OUT.png [WIDTH HEIGHT]\n");
        return kUsage;
    }
    if (!drawScene(width, height, haze).save(words.at(0), nullptr, kQuality)) {
        std::fprintf(stderr, "draw_scene: cannot write %s\n", qPrintable(words.at(0)));
        return 1;
    }
    return 0;
}
