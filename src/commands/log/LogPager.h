// The paging of "view log": a walk over an opened log from one record, by
// neighbours only, that sends each record out as soon as it is formatted.
//
// The position is an index (0 the oldest record). After a page backwards it
// is the oldest record shown; after a page forwards, one past the newest
// shown, so that paging on forwards never shows a record twice.
#pragma once

#include <functional>
#include <string>

#include "records/KLogEntry.h"

class HLogView;

class LogPager {
public:
    // Takes one piece of output; false when it could not be written.
    using Sink = std::function<bool(std::string const&)>;

    LogPager(HLogView& view, long long count, Sink sink);

    // Starts at the record at `position`. False when there is none.
    bool startAt(long long position);

    // Shows up to `next` records from the current one on, towards the newest.
    // False as soon as the output fails.
    bool forward(long long next);
    // Shows the `previous` records before the position (fewer near the
    // start), oldest first. False as soon as the output fails.
    bool backward(long long previous);

    long long position() const { return position_; }
    // The record the walk stands on; a search moves it, not the position.
    KLogEntry current;

private:
    // Shows `count` records from the current one on, stopping at the newest.
    bool showFromCurrent(long long count, bool countPosition);

    HLogView& view;
    long long count;
    Sink sink;
    long long position_ = 0;
    // Output waiting to go out with the next record.
    std::string pending;
};

// The page length of a plain "view log": the number at the start of the
// remembered -previous value less one, or 20 when that is 0 or the value is
// empty.
long long rememberedPageLength(std::string const& previousValue);

// The number at the start of a remembered value, as atoi reads it (blanks,
// a sign, digits; 0 when there are none), held to the range of int.
long long leadingNumber(std::string const& text);
