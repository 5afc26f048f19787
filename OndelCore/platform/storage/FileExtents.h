#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace OndelCore::platform {

/// Where a part of a file lies on the file system's device. Units: bytes.
struct FileExtent {
    std::int64_t offset = 0;
    std::int64_t place = 0;
    std::int64_t length = 0;
};

/// By rising offset, at most `most` of them; holes are left out, and so is what the file system keeps
/// elsewhere or encoded. Threads: any. Fails: empty where the file system does not tell.
std::vector<FileExtent> fileExtents(int descriptor, std::size_t most);

/// Reserves space for the first `length` bytes of an empty file at once and without writing them; the file's
/// length stays, or becomes `length`. Threads: any. Fails: false where the file system cannot, or has no
/// room; errno is set.
bool reserveSpace(int descriptor, std::int64_t length);

/// Whether what lies before the first write to a file has to be filled with zeros by writing them.
bool lacksSparseFiles(int descriptor);

/// Whether the parts of a sparse file lie as far from each other on the device as they do in the file,
/// although the space between them is not reserved.
bool spreadsSparseFiles(int descriptor);

/// Drops the file's pages from the system's cache. What is not on the medium yet stays. Threads: any. Fails:
/// silently; the system may ignore it.
void dropFromCache(int descriptor);

} // namespace OndelCore::platform
