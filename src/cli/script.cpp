#include "cli/script.h"

#include <ostream>

namespace vantorel {

int RunScript(const std::string&, std::ostream&, std::ostream&) { return 0; }

} // namespace vantorel
