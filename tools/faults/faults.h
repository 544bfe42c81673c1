// The faults. Each returns what it tried, in a few words with figures, or throws what went wrong.
#pragma once

#include "scene.h"

std::string chartOnLimit(const Setting& setting);  // writing stops after N bytes
std::string pictureOnLimit(const Setting& setting);
std::string jpegOnLimit(const Setting& setting);
std::string chartOnFullDisk(const Setting& setting);  // the folder's file system is small, and filled up
std::string pictureOnFullDisk(const Setting& setting);
std::string killedChart(const Setting& setting);
std::string killedPicture(const Setting& setting);
std::string noProcessLeft(const Setting& setting);
std::string readOnlyFolder(const Setting& setting);
std::string vanishingFolder(const Setting& setting);
std::string twentyLocks(const Setting& setting);
