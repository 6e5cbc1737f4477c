#pragma once

/// Kills a process `times` times at random moments of a save, and opens the project after each.
/// Adds a test failure, and says at which moment, when the project is not one of the two states
/// whole; gives up at the first.
void killSaves(int times);
