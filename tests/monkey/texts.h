#pragma once

#include <QString>

#include <string>

#include "monkey/dice.h"

namespace tavrel::test {

/// From now on only what ends no program and what the fonts at hand hold: what the toolkit keeps of fonts
/// that it has looked through for other characters would pass for growth.
void TypePlainly();

/// What a person types, without line breaks and control characters: words, tags, separators, characters that
/// no note can hold.
QString AnyTyped(Dice& dice);

/// What a person pastes: also line breaks, control characters and very long words.
QString AnyPasted(Dice& dice);

/// A document's or plan's name: mostly one of a few, so that they meet again.
QString AnyName(Dice& dice);

/// A number for a page, now and then out of range or none at all.
QString AnyNumber(Dice& dice);

/// Where a link goes.
QString AnyTarget(Dice& dice);

/// The bytes that a field keeps of a text that was typed or pasted into it: characters outside the code page
/// are "?", each line break is `line_break`.
std::string Kept(const QString& text, const std::string& line_break);

/// A text without the blanks at its ends.
std::string Trimmed(const std::string& text);

}  // namespace tavrel::test
