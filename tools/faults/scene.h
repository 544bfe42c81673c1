// What the faults share: the things that are saved, how they are saved, and what lies in the folder
// afterwards.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "files/chart_file.h"

class QApplication;

struct Setting {
    std::filesystem::path folder;     // empty, and the fault's own
    std::filesystem::path converter;  // the module that makes JPEGs
};

// Ends the fault as failed, and says what was expected.
void expect(bool holds, const std::string& what);

// The files of a folder, by their names, with their bytes.
using Files = std::map<std::string, std::string>;
Files filesIn(const std::filesystem::path& folder);
void clear(const std::filesystem::path& folder);

// Two charts whose files differ in every line and in length.
ChartInput firstChart();
ChartInput secondChart();

bool isWholeJpeg(const std::string& bytes);

// The toolkit, without a screen.
std::unique_ptr<QApplication> startToolkit();

// Saves a picture of that size, as the program does. What is said while it is saved counts as a failure.
void savePicture(const std::filesystem::path& path, const std::filesystem::path& converter, int width,
                 int height);

// Expects the files to be those of before and, at the most, one whole picture more. Returns whether it is
// there.
bool onePictureMoreAtMost(const Files& before, const Files& after);

// From here on, the process finds no file system that can hold files without a name, as on many memory sticks
// and network drives.
void refuseNamelessFiles();

// Runs the work in a process of its own and returns its number.
int startProcess(const std::function<void()>& work);

// Waits for the process to end and returns whether it ended well.
bool endedWell(int process);
