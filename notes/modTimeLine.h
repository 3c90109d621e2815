// The half-hourly schedule of a day that can be put into a note.
#pragma once

#include <string>

/// 36 times from "06:00 AM" to "11:30 PM", each followed by " - " and an empty line; lines are parted by CR LF.
std::string TimeLine();
