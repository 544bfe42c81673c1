// The picture converter module: turns a saved BMP into a JPEG file. The program loads it at run time,
// so that everything which does not export pictures works without a JPEG library.

#pragma once

// Converts the BMP file `bmpPath` to the JPEG file `jpegPath`; both are in the file system's encoding.
// `quality` is held within 1 to 100. Returns 1 on success and 0 on failure; the JPEG then appears whole
// or, on failure, whatever was at `jpegPath` before stays as it was.
extern "C" int BmpToJpeg(const char* bmpPath, const char* jpegPath, int quality) noexcept;
