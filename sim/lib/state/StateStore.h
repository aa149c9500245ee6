// The state file that holds the simulated SAN, shared by every process that
// loads the simulated library. Changes are serialised by an exclusive lock on
// a companion lock file and land by rename, so a reader never sees half a
// file and a killed writer leaves the previous state in place.
#pragma once

#include "model/San.h"

#include <functional>
#include <string>

namespace sim {

// The state as a process last saw it: the exact text of the file, the file's
// stamp (see StateStore::stamp) and the SAN that the text holds.
struct Snapshot {
    std::string text;
    std::string stamp;
    San san;
};

class StateStore {
public:
    explicit StateStore(std::string path);

    // HBASIM_STATE, else $HOME/.hbasim/san.json.
    static std::string defaultPath();

    const std::string& path() const { return path_; }

    // A consistent snapshot; the default SAN is written first if there is no
    // state yet. False with a message naming the file on any trouble.
    bool read(San& out, std::string& error);
    // The same, with the text and the stamp of exactly the file read.
    bool read(Snapshot& out, std::string& error);

    // Lock, read, apply, write. `change` returns false to leave the file as it
    // was (its own refusal); the store then returns true, since nothing failed
    // on its side. A store failure is reported by false and `error`.
    bool update(const std::function<bool(San&)>& change, std::string& error);
    // The same, without parsing what the caller already has: when the file
    // still holds exactly `base->text`, `change` gets a copy of `base->san`
    // (which may have been brought forward by rules::settle, never back).
    // When the change is written, `written` receives the new state with the
    // stamp taken under the lock, so that it can serve as the next snapshot.
    // `written` is left alone when nothing was written, or when the written
    // SAN breaks a rule of the model (a fresh read would refuse it).
    bool update(const std::function<bool(San&)>& change, std::string& error, const Snapshot* base, Snapshot* written);

    // Replace the state with `san` (reset).
    bool replace(const San& san, std::string& error);

    // Identity of the file on disk (inode, size, modification time): equal
    // stamps mean a snapshot read earlier is still current. Empty if absent.
    std::string stamp() const;

private:
    std::string name() const; // how messages name the file
    bool ensureExists(std::string& error);
    bool readText(std::string& text, std::string* stamp, std::string& error) const;
    bool parse(const std::string& text, San& out, std::string& error) const;
    // These three are called with the lock held.
    bool writeFile(const San& san, std::string& error) const;
    bool writeText(const std::string& text, std::string& error) const;
    void removeStaleTemporaries() const;

    std::string path_;
};

// Reads a regular file of at most 256 MiB; anything else is refused with a
// message naming the file.
bool readTextFile(const std::string& path, std::string& text, std::string& error);
// Writes a file whole. A symlink is written through to its target; a regular
// file or a missing name is replaced by rename, so that no reader sees half
// of it; a device or a pipe with a reader is written in place. Messages name
// `path`, never a temporary file.
bool writeTextFileAtomically(const std::string& path, const std::string& text, std::string& error);
// The file a write of `path` lands in: `path` with its symlinks followed.
std::string writeTargetOf(const std::string& path);

} // namespace sim
