// The name under which a picture is saved: never that of a file that is there already.
#pragma once

#include <functional>
#include <string>
#include <string_view>

// Local time, to the millisecond.
struct ClockTime {
    int year, month, day, hour, minute, second, millisecond;
};

// What the naming rule asks of the world around it.
struct PictureSurroundings {
    std::string applicationFolder;
    std::function<bool(const std::string& path)> exists;
    std::function<ClockTime()> now;
    char separator = '/';
};

struct PictureName {
    std::string folder;  // ends in the separator
    std::string name;
    bool tooManyCopies;  // all 999 counters are taken, and the name is one that exists

    std::string path() const { return folder + name; }
};

// The full path for a picture of the chosen name in the chosen folder, both in the file system's encoding.
// Without a folder it is the application's own; without a name it is made from the clock (17 digits); a name
// without any dot gets ".jpg", and in any other every ".bmp", in any case of letters, becomes ".jpg". Where
// the name is taken, every dot of it gets the first free counter _001 .. _999 before it.
PictureName uniquePictureName(std::string_view folder, std::string_view name,
                              const PictureSurroundings& around);

// The path with ".bmp" in place of ".jpg", in any case of letters: the name of the temporary bitmap. Equal to
// the path itself where that has no ".jpg".
std::string bitmapPathFor(const std::string& picturePath, char separator = '/');
