#pragma once

namespace varnowb {

enum ExitCode {
    kCalculated = 0,
    kSenseless = 1, // the result file says why; there is no moment curve file
    kNoCase = 2,    // nothing to call a result file by; nothing is written
    kNotWritten =
        3, // a file could not be written or replaced, or a moment curve file no longer true not removed
};

// Calculates the case in "~indata~.tmp": reads it from the current folder and leaves the result file and
// "momk.dat" there. Each is written under another name first and takes the place of an older one only when it
// is complete.
ExitCode run();

} // namespace varnowb
