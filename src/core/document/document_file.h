#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/document/global.h"
#include "core/platform.h"

namespace tavrel {

/// Reads the open document's file into `Pages` and `MusicLinks`. Entries that the file does not name keep
/// what they hold. Throws RunTimeError, with nothing changed, if the file cannot be read or is damaged.
void LoadDocument(Global& global);

/// Writes the whole document to its file: music links 0 to 99, an empty line, pages 0 to 999. Music link 100
/// is never stored. Makes the program's folder the current one. Throws RunTimeError; the old file is then
/// untouched.
void SaveDocument(const Global& global, Platform& platform);

/// Deletes a document's file, and its backup: the file of the same name that ends in "bak". Missing files are
/// no error. Throws FileError.
void DeleteDocument(const std::filesystem::path& folder, const std::filesystem::path& name);

/// The bytes of a document file.
std::string DocumentText(const Global& global);

/// The same with another record in one page's place, as a person is typing it.
std::string DocumentText(const Global& global, int typed_page, const std::string& typed_record);

/// The opposite of DocumentText. Throws RunTimeError, with nothing changed, if an index is out of range or
/// the text ends before the empty line.
void ReadDocumentText(std::string_view text, Global& global);

/// The lines of a document file, from 1.
struct DocumentLines {
  std::array<int, 1001> Pages{};  ///< in which each page stands; 0 for those that the file does not have
  int Read = 0;                   ///< how many were read; the last one is damaged if reading throws
};

/// The same as ReadDocumentText from a file, of which only a part at a time is kept in memory. Throws
/// FileError, too. `lines` are told in any case.
void ReadDocumentFile(const std::filesystem::path& file, Global& global, DocumentLines& lines);

/// Reads what can be read of a damaged document: every line that numbers a page or a music link.
void SalvageDocumentText(std::string_view text, Global& global);

}  // namespace tavrel
