// Which marker categories are displayed: showing and hiding them, and keeping the choice for the next start.
#pragma once

/// Shows or hides a category (0..13) and repaints what changes; Birthday, Holiday and Today's Date draw the view again
/// and set TodayShown with them.
void ShowCategory(int category, bool shown);

/// Hide or show every category, and today with them, and draw the view again.
void HideAllMarks();
void ShowAllMarks();

/// Writes which categories are hidden into "Marker Colors.dat", for the next start.
void SaveDisplaySetting();
