#pragma once

#include "common/text.h"

namespace s2k2ngt {

// What rows state and nothing reads, for the account.

/// True when a value says what another says, in whichever case of letters or form of number, or
/// when it says nothing.
bool SaysNoMoreThan(Text neutral, Text value);

/// True when nothing of a model is lost with what a row states under a name that its table is not
/// known to have: what marks the row for people, what follows from its other values, and values
/// that say "no".
bool IsOfNoConsequence(Text name, Text value);

/// True for a value of which something is lost when it is read as a number.
bool IsNoWholeNumber(Text value);
/// True for a value that is neither "Yes" nor "No", and is read as the latter.
bool IsNeitherYesNorNo(Text value);

}  // namespace s2k2ngt
