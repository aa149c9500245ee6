// The state file that holds the simulated SAN, shared by every process that
// loads the simulated library. Changes are serialised by an exclusive lock on
// a companion lock file and land by rename, so a reader never sees half a
// file and a killed writer leaves the previous state in place.
#pragma once

#include "model/San.h"

#include <functional>
#include <string>

namespace sim {

class StateStore {
public:
    explicit StateStore(std::string path);

    // HBASIM_STATE, else $HOME/.hbasim/san.json.
    static std::string defaultPath();

    const std::string& path() const { return path_; }

    // A consistent snapshot; the default SAN is written first if there is no
    // state yet. False with a message naming the file on any trouble.
    bool read(San& out, std::string& error);

    // Lock, read, apply, write. `change` returns false to leave the file as it
    // was (its own refusal); the store then returns true, since nothing failed
    // on its side. A store failure is reported by false and `error`.
    bool update(const std::function<bool(San&)>& change, std::string& error);

    // Replace the state with `san` (reset).
    bool replace(const San& san, std::string& error);

    // Identity of the file on disk (inode, size, modification time): equal
    // stamps mean a snapshot read earlier is still current. Empty if absent.
    std::string stamp() const;

private:
    bool ensureExists(std::string& error);
    bool readFile(San& out, std::string& error) const;
    bool writeFile(const San& san, std::string& error) const;

    std::string path_;
};

bool readTextFile(const std::string& path, std::string& text, std::string& error);
bool writeTextFileAtomically(const std::string& path, const std::string& text, std::string& error);

} // namespace sim
