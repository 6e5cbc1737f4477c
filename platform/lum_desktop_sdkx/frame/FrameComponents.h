#pragma once

/// Registers the desktop's own windows, commands and settings object with their factories.
void registerFrameComponents();
