// How a walk over several LUNs went, for the code of its result record.
#pragma once

class LunOutcomeTally {
public:
    void record(int code);
    // 0 when nothing failed; 2 when some failed and some worked; otherwise
    // the code of the last failure.
    int resultCode() const;

private:
    bool anySucceeded = false;
    bool anyFailed = false;
    int lastFailure = 0;
};
