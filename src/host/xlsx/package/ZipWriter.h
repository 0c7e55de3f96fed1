#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/xlsx/package/Deflate.h"
#include "host/xlsx/package/ZipDirectory.h"

namespace kestrune::host {

/// What one entry of a new archive is made of: an entry that is copied as it lies (`packed` null), an entry whose
/// content is replaced (both), or a new one (`original` null).
struct ZipItem {
    const ZipEntry* original = nullptr;
    const PackedPart* packed = nullptr;
    std::string_view name;
};

/// Writes an archive piece by piece into `sink`. Entries keep their order, in the directory as in the file; new ones
/// come last. Copied entries keep every byte of theirs; replaced ones keep name, time and attributes. The same items
/// give the same bytes: new entries carry the zip format's earliest time. Uses zip64 only where sizes ask for it.
void write_zip(const std::vector<ZipItem>& items, std::string_view comment,
               const std::function<void(std::string_view)>& sink);

}  // namespace kestrune::host
