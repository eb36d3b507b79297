// How the letters of an expression follow the condition list: edits of a compact text.
//
// Nothing here looks at the syntax: a text that was edited by hand into something odd is edited by the same
// rules, and the check reports what comes of it.
#pragma once

#include <string>
#include <string_view>

namespace jogeon {

// Joins a letter to a compact text by "&", so that it becomes the letter with number `position`, counted from
// 0: in front of the operator that came before the letter with that number. A position behind all letters
// joins at the end; an empty text becomes the letter alone, negated or not. Where no operator stands before,
// nothing is inserted.
void InsertLetter(std::string& compact, char letter, int position, bool negated);

// Takes the first occurrence of a letter out of a compact text, with the operator and the brackets that stood
// with it. True if the letter stood negated by a `!` of its own. A text without the letter stays.
bool RemoveLetter(std::string& compact, char letter);

// The same for the expression of a saved set, whose indicator is no longer known.
std::string RemoveLetterFromExpression(std::string exp, char letter);

// Replaces the letters of a compact text by `letters`, in their order. Letters beyond those stay as they are.
void RenumberLetters(std::string& compact, std::string_view letters);

}  // namespace jogeon
