// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Opens the input as an archive and extracts every member that it lists.
#include "FuzzFolder.h"

#include "resources/ZipFile.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static bc::FuzzFolder folder;
    folder.put("data.zip", data, size);
    bc::ZipFile archive("data.zip");
    if (!archive.open())
        return 0;
    for (const bc::ZipEntry& entry : archive.entries()) {
        std::size_t length = 0;
        bool error = false;
        const auto bytes = archive.getBytes(length, entry, error);
        if (bytes && (length != entry.uncompressedSize || bytes[length] != '\0'))
            std::abort();
    }
    return 0;
}
