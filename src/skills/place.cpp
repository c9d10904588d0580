#include "skills/place.h"

#include "skills/events.h"
#include "skills/skills.h"

namespace vantorel {

namespace {

constexpr const char* kShowCaption = "Activate Skills";
constexpr const char* kHideCaption = "Hide Skills";

} // namespace

SkillsPlace PlaceSkillsWindow(const SkillsPlacement& p) {
    SkillsPlace place;
    const int below = p.mainTop + p.mainHeight;
    const int bottom = p.work.top + p.work.height;
    place.top = below + p.height <= bottom ? below : bottom - p.height;
    place.left = p.vessel == 1 ? p.mainLeft : p.mainLeft + p.mainWidth - p.width;
    return place;
}

void SkillsClicked(Calculator& c, Vessel v) {
    Window& form = c.skills[v].Form;
    Button& button = c.main.Skills[v];
    if (form.visible()) {
        form.setVisible(false);
        button.setCaption(kShowCaption);
        return;
    }
    const Window& main = c.main.Form1;
    SkillsPlacement p;
    p.vessel = v;
    p.mainLeft = main.left();
    p.mainTop = main.top();
    p.mainWidth = main.width();
    p.mainHeight = main.height();
    p.width = form.width();
    p.height = form.height();
    p.work = {c.workLeft, c.workTop, c.workWidth, c.workHeight};
    const SkillsPlace place = PlaceSkillsWindow(p);
    form.setLeft(place.left);
    form.setTop(place.top);
    form.setVisible(true);
    button.setCaption(kHideCaption);
}

void SkillsCloseClicked(Calculator& c, Vessel v) {
    c.skills[v].Form.setVisible(false);
    c.main.Skills[v].setCaption(kShowCaption);
}

} // namespace vantorel
