#pragma once

#include <s2k2ngt/account.h>
#include <s2k2ngt/drawing.h>

#include <string>

/// The views of a converted model as a part of a page, with what rows with a loss name marked in
/// them; empty when there is nothing to draw. It tells how many elements are not drawn because a
/// joint of theirs is not there. The page has the styles of their classes.
///
/// A large model is drawn coarsely, so that the part stays below a megabyte.
std::string DrawingsOf(const s2k2ngt::Drawing& drawing, const s2k2ngt::Account& account);
