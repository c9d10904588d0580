#pragma once

// The help and information windows as records: their start values and the
// names of their fields. The warning note has its own file (help/note.h).

#include "engine/registry.h"
#include "engine/windows.h"

namespace vantorel {

// Writes the start values of each window.
void SetUpDocumentationWindow(DocumentationWindow& d);
void SetUpAboutWindow(AboutWindow& a);
void SetUpSplashWindow(SplashWindow& s);
// Names each window's fields: `Documentation.OK`, `About.Online`, ...
void RegisterFields(FieldTable& table, DocumentationWindow& d);
void RegisterFields(FieldTable& table, AboutWindow& a);
void RegisterFields(FieldTable& table, SplashWindow& s);

} // namespace vantorel
