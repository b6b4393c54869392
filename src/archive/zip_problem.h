// Why an archive, or one of its entries, cannot be taken. The reader stops at the first.
#pragma once

#include <string>

namespace cv2 {

enum class ZipProblem {
    None,
    NotAnArchive,   // no end record: not a zip file at all
    Truncated,      // the archive ends before what it describes
    Damaged,        // records that contradict themselves or each other
    Zip64,          // the 64-bit extension, not read here
    Encrypted,      // an entry needs a password
    UnknownMethod,  // packed other than stored or deflated
    TooManyEntries, // more entries than the limit
    TooLarge,       // unpacks to more than the limit in all
    RatioTooHigh,   // an entry unpacks to more than the limit times its packed size
    BadChecksum,    // an entry's bytes do not match its CRC-32
    AbsolutePath,   // a name that starts at a root or a drive
    LeavesFolder,   // a name with ".." in it
    UnfitName,      // a name no Windows file system can hold
    NameTooLong,    // a name over the length limit
    DuplicateName,  // two entries that would land on one file
    WriteFailed,    // the unpacked bytes could not be written
};

// A problem and the entry it was found in (empty for the archive as a whole).
struct ZipResult {
    ZipProblem problem = ZipProblem::None;
    std::wstring entry;

    bool Ok() const { return problem == ZipProblem::None; }
};

} // namespace cv2
