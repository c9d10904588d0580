#include "program/registry.h"

#include "graph/window.h"
#include "help/note.h"
#include "help/window.h"
#include "mainwindow/window.h"
#include "settings/window.h"
#include "skills/window.h"

namespace vantorel {

ControlRegistry::ControlRegistry(Calculator& c) {
    RegisterFields(m_refs, c.main);
    RegisterFields(m_refs, c.settings[1], "Alpha");
    RegisterFields(m_refs, c.settings[2], "Omega");
    RegisterFields(m_refs, c.skills[1], "AlphaSkills");
    RegisterFields(m_refs, c.skills[2], "OmegaSkills");
    RegisterFields(m_refs, c.graph);
    RegisterFields(m_refs, c.documentation);
    RegisterFields(m_refs, c.about);
    RegisterFields(m_refs, c.note);
    RegisterFields(m_refs, c.splash);
    RegisterFields(m_refs, c.state);

    m_byName.reserve(m_refs.size());
    for (std::size_t i = 0; i < m_refs.size(); ++i) {
        m_byName.emplace(m_refs[i].name, i);
        if (m_refs[i].base != m_refs[i].name) m_arrays.insert(m_refs[i].base);
    }
}

const ControlRef* ControlRegistry::find(std::string_view name) const {
    auto it = m_byName.find(NormalName(name));
    return it == m_byName.end() ? nullptr : &m_refs[it->second];
}

bool ControlRegistry::isArray(std::string_view base) const { return m_arrays.count(std::string(base)) != 0; }

} // namespace vantorel
