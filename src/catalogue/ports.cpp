#include "catalogue/ports.h"

#include "engine/selection.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

namespace {

bool StartsWith(std::string_view s, std::string_view head) { return s.substr(0, head.size()) == head; }

bool EndsWith(std::string_view s, std::string_view tail) {
    return s.size() >= tail.size() && s.substr(s.size() - tail.size()) == tail;
}

List& ForwardPort(Calculator& c, Vessel v, int i) { return v == 1 ? c.main.Forward[i] : c.main.CForward[i]; }
List& RearPort(Calculator& c, Vessel v, int i) { return v == 1 ? c.main.Rear[i] : c.main.CRear[i]; }

std::vector<std::string> ForwardRows(int list, const std::string& e, const std::string& p) {
    std::vector<std::string> rows = {"Empty", e + "Beam Array", e + "Cannon", "Dual " + e + "Beam Bank"};
    if (list == 1) {
        rows.insert(rows.end(), {e + "Dual Cannons", e + "Dual Heavy Cannons", e + "Turret", p + "Torpedo Launcher"});
    } else {
        rows.insert(rows.end(), {e + "Turret", p + "Torpedo Launcher"});
        if (list == 3) rows.push_back("Shuttle " + e + "Beam Array");
    }
    return rows;
}

std::vector<std::string> RearRows(const std::string& e, const std::string& p) {
    return {"Empty", e + "Beam Array", e + "Turret", p + "Torpedo Launcher", p + "Mine Launcher"};
}

// A port's text is its whole state, so a weapon survives a change of damage
// type by being recognised from its ending and spelt anew. The order of the
// tests matters: "Shuttle ... Beam Array" also ends in "Array", and "Dual
// Heavy Cannons" also ends in "Cannons".
std::string RecomposeForward(const std::string& t, const std::string& e, const std::string& p) {
    if (StartsWith(t, "Shuttle")) return "Shuttle " + e + "Beam Array";
    if (EndsWith(t, "Array")) return e + "Beam Array";
    if (EndsWith(t, "Turret")) return e + "Turret";
    if (EndsWith(t, "Bank")) return "Dual " + e + "Beam Bank";
    if (EndsWith(t, "Cannon")) return e + "Cannon";
    if (EndsWith(t, "Dual Cannons")) return e + "Dual Cannons";
    if (EndsWith(t, "Cannons")) return e + "Dual Heavy Cannons";
    if (EndsWith(t, "Launcher")) return p + "Torpedo Launcher";
    return t;
}

// Torpedo and mine launchers are told apart by the letter before " Launcher".
std::string RecomposeRear(const std::string& t, const std::string& e, const std::string& p) {
    if (EndsWith(t, "Array")) return e + "Beam Array";
    if (EndsWith(t, "Turret")) return e + "Turret";
    if (EndsWith(t, "o Launcher")) return p + "Torpedo Launcher";
    if (EndsWith(t, "e Launcher")) return p + "Mine Launcher";
    return t;
}

} // namespace

void WeaponAdd(Calculator& c, int list, Vessel v) {
    const std::string e(GetDamageType(c, v, DamageGroup::Energy));
    const std::string p(GetDamageType(c, v, DamageGroup::Projectile));
    for (int i = 1; i <= 4; ++i) {
        List& f = ForwardPort(c, v, i);
        List& r = RearPort(c, v, i);
        // Disabled ports rebuild without starting a recalculation.
        f.setEnabled(false);
        r.setEnabled(false);
        std::string tf = f.text();
        std::string tr = r.text();
        f.clear();
        r.clear();

        tf = RecomposeForward(tf, e, p);
        tr = RecomposeRear(tr, e, p);
        if (tf.empty()) tf = ForwardHint(i);
        if (tr.empty()) tr = RearHint(i);

        for (std::string& row : ForwardRows(list, e, p))
            f.addItem(std::move(row));
        // A ship that cannot mount dual cannons gets a dual beam bank instead.
        if ((list == 2 || list == 3) && (tf == e + "Dual Heavy Cannons" || tf == e + "Dual Cannons"))
            tf = "Dual " + e + "Beam Bank";
        for (std::string& row : RearRows(e, p))
            r.addItem(std::move(row));
        if ((list == 1 || list == 2) && tf == "Shuttle " + e + "Beam Array") tf = e + "Beam Array";

        f.setText(tf);
        r.setText(tr);
        f.setEnabled(true);
        r.setEnabled(true);
    }
}

void WeaponUnlock(Calculator& c, int forward, int rear, Vessel v) {
    for (int i = 1; i <= 4; ++i) {
        List& f = ForwardPort(c, v, i);
        List& r = RearPort(c, v, i);
        f.setEnabled(false);
        f.setVisible(false);
        r.setEnabled(false);
        r.setVisible(false);
    }
    // A closed port keeps no weapon, so a bigger ship later starts empty there.
    for (int i = forward + 1; i <= 4; ++i)
        ForwardPort(c, v, i).setText(ForwardHint(i));
    for (int i = rear + 1; i <= 4; ++i)
        RearPort(c, v, i).setText(RearHint(i));
    for (int i = 1; i <= forward; ++i) {
        ForwardPort(c, v, i).setVisible(true);
        ForwardPort(c, v, i).setEnabled(true);
    }
    Label& heading = v == 1 ? c.main.RearWeaponlabel : c.main.CRearWeaponlabel;
    if (rear == 0) {
        heading.setVisible(false);
        return;
    }
    heading.setVisible(true);
    for (int i = 1; i <= rear; ++i) {
        RearPort(c, v, i).setVisible(true);
        RearPort(c, v, i).setEnabled(true);
    }
}

std::string ForwardHint(int i) { return "Forward Weapon Port " + std::to_string(i); }
std::string RearHint(int i) { return "Rear Weapon Port " + std::to_string(i); }

} // namespace vantorel
