// The picture converter: a module that is loaded only to save a picture; all else needs no JPEG library.
#pragma once

// Converts the BMP file `bmpPath` to the JPEG file `jpegPath`, which it replaces; both paths are in the file
// system's encoding. A `quality` outside 1..100 is clamped. Returns 1, or 0 after a failure,
// which leaves `jpegPath` unchanged as far as writeFile() can.
extern "C" int BmpToJpeg(const char* bmpPath, const char* jpegPath, int quality) noexcept;
