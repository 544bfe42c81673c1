// The name under which a picture is saved: a free one, until all counters are taken.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

inline constexpr std::size_t longestFileName = 255;  // in bytes; file systems hold no longer ones
inline constexpr std::string_view pictureExtension = ".jpg";

// What the naming rule asks of the world around it.
struct PictureSurroundings {
    std::string applicationFolder;
    std::function<bool(const std::string& path)> exists;
    std::string clock;  // local time in 17 digits: year, month, day, hour, minute, second, millisecond
};

struct PictureName {
    std::string folder;  // ends in "/"
    std::string name;
    bool tooManyCopies;  // all 999 counters are taken: the picture replaces the one of this name

    std::string path() const { return folder + name; }
};

// The full path for a picture of the chosen name in the chosen folder, both in the file system's encoding.
// Without a folder it is the application's own; without a name it is the clock's; a name without any dot gets
// ".jpg", and in any other every ".bmp", in any case of letters, becomes ".jpg". Where the name is taken,
// every dot of it gets the first free counter _001 .. _999 before it; a counted name longer than the 255
// bytes that file systems hold loses whole UTF-8 characters in front of its counters.
PictureName uniquePictureName(std::string_view folder, std::string_view name,
                              const PictureSurroundings& around);

// The path with ".bmp" in place of ".jpg", in any case of letters: the name of the temporary bitmap. Equal to
// the path itself where that has no ".jpg".
std::string bitmapPathFor(const std::string& picturePath);
