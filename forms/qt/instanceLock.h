// One running program for one data folder.
#pragma once

class QString;

/// Takes the folder for this run of the program. False if another running program has it; the lock of a program that
/// was killed is gone with it. Where no lock can be made (a read-only medium, a file system without locks) the start is
/// allowed. The lock is held until the program ends.
bool TakeInstanceLock(const QString& folder);
