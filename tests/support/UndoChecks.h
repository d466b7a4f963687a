#pragma once

#include <functional>

class Document;

// The shape every command test shares: edit a document, then check that undoing every step gives the
// original bytes and an unmodified document, and redoing them gives the edited bytes again.
// edit pushes its commands on the document's stack; steps is how many undo steps it should make.
// Returns false after a QTest failure message.
bool checkUndoRedo(Document& document, const std::function<void()>& edit, int steps);
