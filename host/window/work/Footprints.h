#pragma once

#include <vector>

class VImage;

/// The pixels of a picture on the screen along one side, as intervals of the pixels of an image under it.
class Footprints
{
public:
    /// `count` screen pixels, each `step` pixels of the image long, the first one starting at `start`; the image has `length`.
    Footprints(int count, double start, double step, int length);

    /// The screen pixels that the image covers at least in part are those from first() to before end().
    int first() const { return begin; }
    int end() const { return begin + int(intervals.size()); }
    int count() const { return int(intervals.size()); }

    /// The part of the image under screen pixel `pixel`, one of these.
    struct Interval
    {
        double from, to;
    };
    Interval interval(int pixel) const { return intervals[std::size_t(pixel - begin)]; }
    /// The image's pixels under the screen pixels from `pixel` to before `stop`: the first, and the one behind the last.
    int sourceFirst(int pixel) const { return int(interval(pixel).from); }
    int sourceEnd(int stop) const;
    /// The image's pixel under the middle of this screen pixel.
    int nearest(int pixel) const;

private:
    int begin = 0;
    int imageLength = 0;
    std::vector<Interval> intervals;
};

/// Reduces `source` by area averaging, for the screen pixels of the rows `firstRow` to before `endRow`. `source` is Rgba with
/// 32-bit samples, or Grey with 32-bit samples; its corner lies at (left, top) of the image that the footprints refer to, and it
/// holds all that is under them. Colours count by their alpha. `target`, in the same form, holds columns.count() columns, and the
/// row of screen pixel `firstRow` is its row `targetRow`. Runs a team of `threadCount`.
void reduceArea(const VImage &source, int left, int top, const Footprints &columns, const Footprints &rows, int firstRow,
                int endRow, VImage &target, int targetRow);
