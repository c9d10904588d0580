#include "help/window.h"

namespace vantorel {

void SetUpDocumentationWindow(DocumentationWindow& d) { d.Form = Window("Vantorel Documentation"); }
void SetUpAboutWindow(AboutWindow& a) { a.Form = Window("About- Vantorel 4.0"); }
void SetUpSplashWindow(SplashWindow& s) { s.Form = Window(""); }

void RegisterFields(FieldTable& table, DocumentationWindow& d) {
    FieldNames(table, "Documentation", &d.Form).window(d.Form);
}
void RegisterFields(FieldTable& table, AboutWindow& a) { FieldNames(table, "About", &a.Form).window(a.Form); }
void RegisterFields(FieldTable& table, SplashWindow& s) { FieldNames(table, "SplashScreen", &s.Form).window(s.Form); }

} // namespace vantorel
