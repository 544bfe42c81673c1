// Feeds arbitrary folders, names, clocks and sets of files that are there to the naming rule of pictures: no
// name that it gives is taken.

#include <fuzzer/FuzzedDataProvider.h>

#include <string>
#include <unordered_set>

#include "files/picture_name.h"
#include "must.h"

namespace {

ClockTime consumeTime(FuzzedDataProvider& input) {
    ClockTime time{};
    for (int ClockTime::*part : {&ClockTime::year, &ClockTime::month, &ClockTime::day, &ClockTime::hour,
                                 &ClockTime::minute, &ClockTime::second, &ClockTime::millisecond}) {
        time.*part = input.ConsumeIntegral<int>();
    }
    return time;
}

std::string lowered(std::string text) {
    for (char& character : text) {
        if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
    }
    return text;
}

bool holds(const std::string& text, const char* part) {
    return lowered(text).find(part) != std::string::npos;
}

void checkName(const PictureName& picture, const std::string& given, const PictureSurroundings& around) {
    must(picture.tooManyCopies == around.exists(picture.path()));
    must(picture.folder.ends_with(around.separator));
    must(picture.name.find('.') != std::string::npos);
    must(!holds(picture.name, ".bmp"));
    if (given.find('.') == std::string::npos)
        must(picture.name.starts_with(given) && picture.name.ends_with(".jpg"));
}

void checkBitmap(const std::string& path, char separator) {
    const std::string bitmap = bitmapPathFor(path, separator);
    const std::size_t name = path.rfind(separator) + 1;
    must(bitmap.starts_with(path.substr(0, name)) && bitmap.size() == path.size());
    must(!holds(bitmap.substr(name), ".jpg"));
    must((bitmap == path) == !holds(path.substr(name), ".jpg"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input{data, size};
    const ClockTime time = consumeTime(input);
    const char separator = input.ConsumeBool() ? '/' : '\\';
    int copies = input.PickValueInArray({0, 1, 2, 3, 9, 10, 99, 100, 998, 999, 1000});
    const std::string folder = input.ConsumeRandomLengthString();
    const std::string name = input.ConsumeRandomLengthString();
    const std::string home = input.ConsumeRandomLengthString();
    std::unordered_set<std::string> files;
    while (input.remaining_bytes() > 0) files.insert(input.ConsumeRandomLengthString());

    // The first paths that the rule asks for are there, too: so many copies of the picture.
    const auto copied = [&](const std::string& path) { return copies-- > 0 && files.insert(path).second; };
    const auto exists = [&](const std::string& path) { return files.contains(path) || copied(path); };
    const PictureSurroundings around{home, exists, [time] { return time; }, separator};
    const PictureName picture = uniquePictureName(folder, name, around);
    copies = 0;
    checkName(picture, name, around);
    must(!picture.tooManyCopies || files.size() >= 1000);  // the name itself and its counters 001 to 999
    checkBitmap(picture.path(), separator);
    must(uniquePictureName(folder, name, around).path() == picture.path());
    return 0;
}
