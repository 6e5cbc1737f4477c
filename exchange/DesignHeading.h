#pragma once

#include "model/Language.h"

#include <QStringList>

#include <string_view>

/// The captions of an exported design file, in their order.
[[nodiscard]] QStringList designCaptions(const Language& language = {});

/// Whether the line is the heading of a design file in one of the languages, with the design code
/// that an export has or without it.
[[nodiscard]] bool isDesignHeading(std::string_view line, const std::vector<Language>& languages);
