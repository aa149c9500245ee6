// Scratch space for tests: a private directory under /tmp that goes away
// with everything in it, and an environment variable set for one scope.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

class TempDirectory {
public:
    explicit TempDirectory(std::string const& prefix = "zek-test")
    {
        std::string pattern = "/tmp/" + prefix + "-XXXXXX";
        if (mkdtemp(pattern.data()))
            path = pattern;
    }
    ~TempDirectory()
    {
        std::error_code ignored;
        if (!path.empty())
            std::filesystem::remove_all(path, ignored);
    }
    TempDirectory(TempDirectory const&) = delete;
    TempDirectory& operator=(TempDirectory const&) = delete;

    bool made() const { return !path.empty(); }
    std::string file(std::string const& name) const { return path + "/" + name; }

    std::string path; // empty when the directory could not be made
};

// Sets the variable and gives it back its earlier value, or none, at the end
// of the scope.
class ScopedEnvironmentVariable {
public:
    ScopedEnvironmentVariable(char const* name, std::string const& value) : name_(name)
    {
        if (char const* before = std::getenv(name))
            before_ = before;
        setenv(name, value.c_str(), 1);
    }
    ~ScopedEnvironmentVariable()
    {
        if (before_)
            setenv(name_, before_->c_str(), 1);
        else
            unsetenv(name_);
    }
    ScopedEnvironmentVariable(ScopedEnvironmentVariable const&) = delete;
    ScopedEnvironmentVariable& operator=(ScopedEnvironmentVariable const&) = delete;

private:
    char const* name_;
    std::optional<std::string> before_;
};
