#pragma once

#include <string>

#include "core/document/global.h"
#include "core/ipod/note_writer.h"

/// The rules for elements, documents and notes written down step by step, one character at a time and with
/// positions from 1, for comparison with the code that the program runs.
namespace tavrel::fuzz {

/// The position of `wanted` in `text`, counted from 1 and searched from position `from`; 0 if absent.
std::size_t Position(const std::string& text, const std::string& wanted, std::size_t from);

std::string LiteralGetTag(const std::string& text, const std::string& tag, int occurrence);
void LiteralSetTag(std::string& text, const std::string& value, const std::string& tag, int occurrence);

/// Throws RunTimeError for an index out of range and for a text without an empty line.
void LiteralReadDocument(const std::string& text, Global& global);

/// Throws RunTimeError for a music link number outside 0 to 100.
std::string LiteralGetMusic(const Global& global, const std::string& reference);
std::string LiteralGetText(const Global& global, const std::string& text, int page);
std::string LiteralNote(const Global& global, int page, const PublishOptions& options);

}  // namespace tavrel::fuzz
