#pragma once

#include <filesystem>
#include <string>

#include "core/document/global.h"
#include "core/platform.h"

namespace tavrel::test {

// Files of many versions, which can all be told from each other. Those that follow one another are of
// different sizes, and each part of a file tells its version.

inline constexpr int kSmallVersions = 1'000'000;  ///< versions from here on are small ones only

/// Saves a version of a document: one page, forty or a full-size document.
void SaveDocumentVersion(int version, const std::filesystem::path& folder, Platform& platform);
/// Whether a document or backup opens and is wholly of that version.
bool IsDocumentVersion(int version, const std::filesystem::path& file);

void SavePlanVersion(int version, const std::filesystem::path& folder, Platform& platform);
bool IsPlanVersion(int version, const std::filesystem::path& folder);

void SaveSettingsVersion(int version, const std::filesystem::path& folder, Platform& platform);
bool AreSettingsVersion(int version, const std::filesystem::path& folder, Platform& platform);

/// Saves a small version of a document and backs it up, or makes a backup and restores the document from it.
void SaveBackupVersion(int version, const std::filesystem::path& folder, Platform& platform);

}  // namespace tavrel::test
