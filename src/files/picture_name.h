// The file name for a picture: one that is free, as long as there are counters.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

inline constexpr std::size_t longestFileName = 255;  // in bytes, as most file systems allow
inline constexpr std::string_view pictureExtension = ".jpg";

// What the naming rule needs to know of its surroundings.
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

// The path for a picture of the chosen name in the chosen folder, both in the file system's encoding. The
// default folder is the application's, the default name the clock. A name without a dot gets ".jpg"; in any
// other, every ".bmp", in any case of letters, becomes ".jpg". If the name is taken, the first free counter
// _001 .. _999 is inserted before every dot; a name that is then longer than longestFileName loses whole
// UTF-8 characters before its counters.
PictureName uniquePictureName(std::string_view folder, std::string_view name,
                              const PictureSurroundings& around);

// The path of the temporary bitmap: the picture's, with ".bmp" for every ".jpg" of its name, in any case of
// letters. A name without ".jpg" gives the path of the picture itself.
std::string bitmapPathFor(const std::string& picturePath);
