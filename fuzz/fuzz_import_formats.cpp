// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>

#include "databases/import_formats.h"

// What is read of any file is written so that it is read as the same, nothing of it lost.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ImportFormats formats = ReadImportFormats({reinterpret_cast<const char*>(data), size});
    if (formats.problems.empty() != formats.unread.empty()) std::abort();
    const ImportFormats again = ReadImportFormats(ImportFormatsText(formats));
    if (again.formats != formats.formats) std::abort();
    if (again.problems.empty() != formats.problems.empty()) std::abort();
    return 0;
}
