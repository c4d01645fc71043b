#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varno::tool {

using Milliseconds = std::chrono::milliseconds;

/// What a run of many calculations needs of the system: processes, a clock, locks. Paths are UTF-8.
class EngineHost {
  public:
    struct Ended {
        int child = 0;
        long code = 0;        ///< what it ended with, or the signal or exception that ended it
        bool crashed = false; ///< it did not end by itself
    };
    /// Held by one process of all that share the folder, for as long as this lives.
    class Lock {
      public:
        virtual ~Lock() = default;
    };

    virtual ~EngineHost() = default;

    /// Starts a program with its arguments in a folder, what it prints goes to a file there. Gives its number. From here
    /// on Ctrl+C no longer ends varnotool. \throws RunTimeError when it cannot be started.
    virtual int start(const std::vector<std::string>& words, const std::string& folder,
                      const std::string& output) = 0;
    /// Waits until one has ended, the user has asked for an end, or the time is over.
    virtual std::optional<Ended> wait(std::optional<Milliseconds> longest) = 0;
    /// Ends a program with all that it started; nothing more is heard of it.
    virtual void end(int child) = 0;
    /// The user has asked for an end: Ctrl+C, a closed terminal, a batch system.
    virtual bool interrupted() const = 0;
    virtual Milliseconds now() const = 0;
    /// How many programs the machine runs at once.
    virtual int cores() const = 0;
    /// How many programs it can wait for.
    virtual int mostAtOnce() const = 0;
    /// Nothing when another process holds it. What a dead one held is free.
    virtual std::unique_ptr<Lock> tryLock(const std::string& path) = 0;
};

/// That of the system.
EngineHost& systemEngines();

} // namespace varno::tool
