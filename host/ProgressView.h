#pragma once

#include <map>
#include <vector>

#include "BatchRunner.h"

/// Shows a batch on the command line. Bars are redrawn on a terminal, one for each photograph in hand, the finished ones above
/// them; elsewhere each finished photograph is a line, or a JSON object in a line. Failures go to standard error in every style.
class ProgressView : public BatchRunner::Observer
{
    Q_DECLARE_TR_FUNCTIONS(ProgressView)

public:
    enum class Style { Bars, Lines, Json, Quiet };

    ProgressView(Style look, const std::vector<BatchItem> &batch) : style(look), items(batch) {}

    void stageBegins(int item, BatchRunner::Stage stage) override;
    void finished(int item, const BatchOutcome &outcome) override;
    /// The last lines: how many were not begun before a stop, and how many are done. The second not for one photograph that is
    /// done, and not in the styles Quiet and Json.
    void summarize();

    int done() const { return doneCount; }
    bool allDone() const { return doneCount == int(items.size()); }

    /// A line on standard error that begins with the program's name.
    static void complain(const QString &text);
    /// To standard output, at once.
    static void say(const QString &text);
    /// False, with a complaint, if something that was said could not be written.
    static bool allSaid();

private:
    void eraseBars();
    void drawBars();

    const Style style;
    const std::vector<BatchItem> &items;
    std::map<int, BatchRunner::Stage> inHand;
    int barsDrawn = 0;
    int doneCount = 0;
    int finishedCount = 0;
    int notBegunCount = 0;
};
