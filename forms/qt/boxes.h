// The message and input boxes on the screen.
#pragma once

/// Fills the dialogs seam with real boxes.
void InstallBoxes();
