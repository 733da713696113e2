// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// Every call to the system that touches a watched folder, counted, and made to fail on demand.
///
/// The program of the fault tests has its own versions of the C library's functions on files, which
/// all libraries of the process use in place of the library's. They hand on to those, but for calls
/// on what lies in a watched folder while they count.
namespace system_calls {

/// What happens at one of the calls, counted from 0.
struct Fault {
    enum class Kind {
        None,
        Error,      ///< The call does nothing and fails.
        Lasting,    ///< It fails, and so does every call behind it: the disk is gone.
        Short,      ///< A read or write does half of what it was to do.
        Kill,       ///< The process ends before the call.
        KillWithin  ///< A write does half of it, then the process ends.
    };
    Kind kind = Kind::None;
    long long call = -1;
    int error = 0;  ///< `errno` of an error.
};

/// With this exit code the process ends at a kill.
inline constexpr int killed = 77;

/// Starts to count calls on these folders, two at most, and what is in them, and lets the fault
/// happen. `trace`, where given, gets the name of each call with its path; `changed` runs behind
/// each call that has renamed or removed something.
void Arm(const std::vector<std::string>& folders, const Fault& fault,
         void (*trace)(const char* call, const char* path), void (*changed)());

/// Whether calls are counted now.
bool Armed();

/// While it lives, calls are neither counted nor made to fail.
class Pause {
  public:
    Pause();
    ~Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

  private:
    bool armed_;
};

/// Whether bytes were renamed or left without being flushed, or a folder is changed and has not
/// been flushed yet: a power cut could lose it.
bool LeavesUnflushed();

/// Whether a call of that name is a read or a write, which can be done by half.
enum class CallKind { Other, Read, Write };
CallKind KindOf(const std::string& call);

}  // namespace system_calls
