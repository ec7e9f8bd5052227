#include "VTimers.h"

#include <cwchar>

#include <QThread>

#include "kernel32.h"

namespace {

bool calibrated = false;

constexpr int kSamples = 100;
constexpr int kCallsPerSample = 1000;

qint64 counter()
{
    std::int64_t ticks = 0;
    QueryPerformanceCounter(&ticks);
    return ticks;
}

QString keyOf(const QString &name)
{
    return name + QLatin1Char('@') + QString::number(reinterpret_cast<quintptr>(QThread::currentThread()));
}

/// Ticks per second as one piece of work shows them: the counter is read twice on either side, and the inner span of time is
/// taken in relation to the outer one.
qint64 sample(qint64 frequency, qint64 &count)
{
    wchar_t text[1024];
    const qint64 start1 = counter();
    const qint64 start2 = counter();
    for (int i = 0; i < kCallsPerSample; ++i)
        std::swprintf(text, std::size(text), L"Count: %lld", static_cast<long long>(count++));
    const qint64 stop1 = counter();
    const qint64 stop2 = counter();
    // A clock too coarse to see the work says nothing about itself.
    return stop1 == start1 ? frequency : (stop2 - start2) * frequency / (stop1 - start1);
}

} // namespace

VTimers::VTimers()
{
    if (!calibrated)
        calibrate();
    calibrated = true;
}

void VTimers::calibrate()
{
    std::int64_t frequency = 0;
    QueryPerformanceFrequency(&frequency);
    qint64 samples[kSamples];
    qint64 count = 0;
    for (qint64 &value : samples)
        value = sample(frequency, count);

    // A sample that is out of proportion to the one before it, whether that was taken or not, was interrupted.
    qint64 sum = 0;
    qint64 taken = 0;
    for (int i = 0; i + 1 < kSamples; ++i) {
        if (samples[i + 1] > samples[i] / 2 && samples[i + 1] < 2 * samples[i]) {
            sum += samples[i + 1];
            ++taken;
        }
    }
    const qint64 mean = taken ? sum / taken : frequency;
    ticksPerSecond = mean * 1000000 / 1002284; // a fixed correction
    overheadTicks = 124524475;

    // What a pair costs: the value at hand when, for the 100th time, a result repeats the one before it. The repetitions need not
    // stand in a row.
    qint64 last = 0;
    for (int hits = 0; hits < 100;) {
        start(QStringLiteral("pipo"));
        const qint64 elapsed = stop(QStringLiteral("pipo"));
        if (elapsed == last)
            ++hits;
        else
            last = elapsed;
    }
    overheadTicks += last - 1;
    timers.clear();
}

void VTimers::start(QString name)
{
    decltype(timers)::accessor record;
    timers.insert(record, keyOf(name));
    record->second.startTick = counter(); // last, so that the look-up is not measured
}

qint64 VTimers::stop(QString name)
{
    const qint64 now = counter(); // first, for the same reason
    decltype(timers)::accessor record;
    if (!timers.find(record, keyOf(name)))
        return 0;
    const qint64 elapsed = now - record->second.startTick;
    record->second.total += elapsed;
    ++record->second.count;
    record->second.stopTick = now;
    return elapsed;
}
