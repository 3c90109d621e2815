// One list of clears: every module that holds tables enters how to empty them; start-up and each test run the list.
#pragma once

/// Enters a procedure into the list. Declare one as a static object beside the state it clears.
class ClearedAtStart {
  public:
    explicit ClearedAtStart(void (*clear)());
};

/// Empties the tables of every module: the state the program has before its start-up sequence.
void ClearAllState();
