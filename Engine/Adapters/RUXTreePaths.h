// The language in which scripts name the nodes of a tree.
//
// A node's path is the texts from its root down, joined by `/`. A script gives a node's own text, a full
// path, or an expression that is found in one, from the beginning of a level to the end of one; `//` is a gap
// of any depth. All of it asks live nodes, on the user-interface thread.
#pragma once

#include <string>

#include "platform/toolkit/Classes.h"

namespace rux {

/// Empty for nil.
std::string GetNodePath(TObject* node);

/// The first node, depth first, that the path names: `first`, its later siblings and all below them. Case
/// counts in an expression only. nil for none; an expression that is malformed, or that takes too long, names
/// nothing.
TObject* SearchNode(TObject* first, const std::string& path);

/// The same for a path as a script writes it: brackets stand for themselves, blanks beside a `/` do not
/// count, and a path that names nothing may be the beginning of a text. Never nil: raises ERUXException with
/// the path as it was searched for.
TObject* FindNodeByPath(TObject* first, const std::string& path);

}  // namespace rux
