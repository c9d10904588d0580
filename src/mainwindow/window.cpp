#include "mainwindow/window.h"

#include "catalogue/ports.h"
#include "mainwindow/layout.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace vantorel {

namespace {

const std::vector<std::string> kUnrestrictedClassStart = {
    "Unrestricted",    "Federation", "   Cruiser",       "   Escort",         "   Science Vessel",
    "   Shuttlecraft", "Klingon",    "   Allied Vessel", "   Battle Cruiser", "   Bird of Prey",
    "   Carrier",      "   Raptor",  "   Shuttlecraft "};

const std::vector<std::string> kUnrestrictedTiers = {"Tier 1- Unrestricted Vessel", "Tier 2- Unrestricted Vessel",
                                                     "Tier 3- Unrestricted Vessel", "Tier 4- Unrestricted Vessel",
                                                     "Tier 5- Unrestricted Vessel"};

const std::vector<std::string> kForwardStart = {"Empty",        "Beam Array",         "Cannon", "Dual Beam Bank",
                                                "Dual Cannons", "Dual Heavy Cannons", "Turret", "Torpedo Launcher"};
const std::vector<std::string> kRearStart = {"Empty", "Beam Array", "Turret", "Mine Launcher", "Torpedo Launcher"};

const std::vector<std::string> kDistances = {"0-1 km", "2 km", "3 km", "4 km", "5 km",
                                             "6 km",   "7 km", "8 km", "9 km", "10 km"};

std::vector<std::string> WithSameAsAlpha(std::vector<std::string> rows) {
    rows.insert(rows.begin(), "Same As Alpha");
    return rows;
}

std::vector<std::string> StartPowerRows() {
    std::vector<std::string> rows;
    for (int p = 35; p <= 125; p += 5)
        rows.push_back(std::to_string(p) + " (" + std::to_string(p) + ")");
    return rows;
}

// Where each result box and its caption stand on the window, by box index.
constexpr int kLabelTop[14] = {2520, 3240, 3960, 3960, 5400, 5400, 4680, 5400, 6120, 6840, 6840, 5400, 1800, 7560};
constexpr int kBoxTop[14] = {2760, 3480, 4200, 4200, 5640, 5640, 4920, 5640, 6360, 7080, 7080, 5640, 2040, 7800};
const char* const kBoxCaption[14] = {"Forward 45", "Forward 90",   "Forward 110", "Forward 180", "Forward 250",
                                     "Full 360",   "Front Pocket", "Broadside",   "Rear Pocket", "Rear 110",
                                     "Rear 180",   "Rear 250",     "Front Burst", "Rear Burst"};

} // namespace

void SetUpMainWindow(MainSelection& m) {
    m.Form1 = Window("Vantorel 4.0");
    m.Form1.setWidth(9950);
    m.Cline = Line(7020, 3675, 7020, 7890);
    m.Form1.setHeight(9765);
    m.Contents.setRect({0, 0, 9825, 9360});
    m.Contents.setBack(Black);

    const std::string weaponsTip = "Select your starship's weapons.";
    for (int i = 1; i <= 4; ++i) {
        m.Forward[i] = List(kForwardStart, true);
        m.CForward[i] = List(kForwardStart, true);
        m.Rear[i] = List(kRearStart, true);
        m.CRear[i] = List(kRearStart, true);
        m.Forward[i].setText(ForwardHint(i));
        m.CForward[i].setText(ForwardHint(i));
        m.Rear[i].setText(RearHint(i));
        m.CRear[i].setText(RearHint(i));
        for (List* l : {&m.Forward[i], &m.CForward[i], &m.Rear[i], &m.CRear[i]})
            l->setTooltip(weaponsTip);
        m.CForward[i].setVisible(false);
        m.CRear[i].setVisible(false);
    }

    for (Vessel v = 1; v <= 2; ++v) {
        const bool omega = v == 2;
        m.ShipClass[v] = List(omega ? WithSameAsAlpha(kUnrestrictedClassStart) : kUnrestrictedClassStart);
        m.ShipTier[v] = List(omega ? WithSameAsAlpha(kUnrestrictedTiers) : kUnrestrictedTiers);
        m.ShipSubclass[v] = List();
        m.PowerLevel[v] = List(omega ? WithSameAsAlpha(StartPowerRows()) : StartPowerRows(), true);
        m.TargetDistance[v] = List(omega ? WithSameAsAlpha(kDistances) : kDistances);
        m.ShuttleRank[v] = List();
        m.ShuttleMod[v] = Flag(0, "Rare Shuttle Array");

        // The start-up selects their rows while they are disabled.
        for (List* l : {&m.ShipClass[v], &m.ShipTier[v], &m.PowerLevel[v], &m.TargetDistance[v]})
            l->setEnabled(false);

        m.ShipClass[v].setTooltip("Select your starship's class.");
        m.ShipTier[v].setTooltip("Select your starship's tier.");
        m.ShipSubclass[v].setTooltip("Select the exact subclass of your starship.");
        m.PowerLevel[v].setTooltip("Calculated using the results of my weapon scaling tests.");
        m.TargetDistance[v].setTooltip("Calculated using Tolmar's data at the Hollow Ember blog.");
        m.ShuttleRank[v].setTooltip("Select your exact rank, so the program can accurately determine the damage of "
                                    "shuttle beam arrays.");
        m.ShuttleMod[v].setTooltip("Check if you have the rare shuttle beam array, which is received from completing "
                                   "The Vault feature episode a second time.");

        m.ShipClasslabel[v] = Label("Ship Class");
        m.ShipTierlabel[v] = Label("Ship Tier");
        m.ShipSubclassLabel[v] = Label("Ship Sub-Class");
        m.PowerLevellabel[v] = Label("Weapon Power Setting");
        m.TargetDistancelabel[v] = Label("Target Distance");
        m.ShuttleRankLabel[v] = Label("Rank (Shuttle Weapons)");
        m.Skills[v] = Button("Activate Skills", "Click to show the Activated Skills Window, which will allow you to "
                                                "select various Captain and Bridge Officer skills.");
        m.Advanced[v] = Button("Show Settings",
                               "Click to show the Advanced Settings Window.  By customizing the advanced settings, you "
                               "can tailor the program's output to more closely match your in-game results.");

        m.ShipSubclassLabel[v].setVisible(false);
        m.ShipSubclass[v].setVisible(false);
        m.ShuttleRankLabel[v].setVisible(false);
        m.ShuttleRank[v].setVisible(false);
        m.ShuttleRank[v].setEnabled(false);
        m.ShuttleMod[v].setVisible(false);
        for (Label* l : {&m.ShipClasslabel[v], &m.ShipTierlabel[v], &m.ShipSubclassLabel[v], &m.PowerLevellabel[v],
                         &m.TargetDistancelabel[v], &m.ShuttleRankLabel[v]})
            l->setFore(White);

        if (omega) {
            for (Control* ctl :
                 std::initializer_list<Control*>{&m.ShipClass[2], &m.ShipTier[2], &m.ShipSubclass[2], &m.PowerLevel[2],
                                                 &m.TargetDistance[2], &m.Skills[2], &m.Advanced[2]})
                ctl->setVisible(false);
        }
    }
    m.Simplified = Flag(0, "Simplified Firing Arcs");
    m.Simplified.setTooltip("Check to enable Simplified Firing Arcs mode, which draws only the front, side and rear "
                            "arcs.  Uncheck to allow the drawing of all firing arcs.");
    m.Simplified.setFore(White);
    m.Simplified.setBack(Black);
    m.Simplified.setRect({5640, 8160, 2775, 495});

    m.ForwardWeaponlabel = Label("Forward Weapons");
    m.CForwardWeaponlabel = Label("Forward Weapons");
    m.RearWeaponlabel = Label("Rear Weapons");
    m.CRearWeaponlabel = Label("Rear Weapons");
    for (Label* l : {&m.ForwardWeaponlabel, &m.CForwardWeaponlabel, &m.RearWeaponlabel, &m.CRearWeaponlabel})
        l->setFore(White);

    m.Reset = Button("Reset", "Click to clear the starship's weapon selections.");
    m.CReset = Button("Reset", "Click to clear the starship's weapon selections.");
    m.CReset.setVisible(false);
    m.GraphResults = Button("Graph Results", "Click to display the Graph Window.");
    m.Help = Button("Help", "Click to display the Main Window section of the program's documentation.");
    m.ShowAbout = Button("About", "Click to view the program's license and documentation.");
    m.Compare = Button("Compare  >>");
    m.HideCompare = Button("<<  Hide");
    m.HideCompare.setVisible(false);
    m.GraphResults.setRect({4920, 8880, 1335, 375});
    m.Help.setRect({6360, 8880, 1335, 375});
    m.ShowAbout.setRect({7800, 8880, 1335, 375});
    m.Compare.setRect({8400, 120, 1335, 375});
    m.HideCompare.setRect({9720, 120, 1335, 375});

    m.Primarylabel = Label("Alpha");
    m.Primarylabel.setFore(0x0000FF);
    m.Primarylabel.setVisible(false);
    m.Primarylabel.setRect({120, 120, 1095, 375});
    m.Secondarylabel = Label("Omega");
    m.Secondarylabel.setFore(0x00FFFF);
    m.Secondarylabel.setRect({11400, 120, 1215, 375});
    m.Note = Label("");
    m.Note.setFore(0x0000FF);
    m.Note.setVisible(false);
    m.Note.setRect({2880, 480, 6855, 1215});
    m.FiringArcsLabel = Label("Firing Arcs");
    m.FiringArcsLabel.setFore(White);
    m.FiringArcsLabel.setRect({4320, 2160, 5415, 495});
    for (Label* l : {&m.Primarylabel, &m.Secondarylabel, &m.Note, &m.FiringArcsLabel})
        l->setBack(Black);

    for (int i = 0; i <= 13; ++i) {
        m.FiringArcLabel[i] = Label(kBoxCaption[i]);
        m.CFiringArcLabel[i] = Label(kBoxCaption[i]);
        m.FiringArcDPS[i] = Label("");
        m.CFiringArcDPS[i] = Label("");
        m.FiringArcLabel[i].setRect({3000, kLabelTop[i], 1335, 240});
        m.CFiringArcLabel[i].setRect({9720, kLabelTop[i], 1335, 240});
        m.FiringArcDPS[i].setRect({3000, kBoxTop[i], 1335, 375});
        m.CFiringArcDPS[i].setRect({9720, kBoxTop[i], 1335, 375});
        for (Label* l : {&m.FiringArcLabel[i], &m.CFiringArcLabel[i]}) {
            l->setFore(White);
            l->setBack(Black);
        }
        for (Label* l : {&m.FiringArcLabel[i], &m.CFiringArcLabel[i], &m.FiringArcDPS[i], &m.CFiringArcDPS[i]})
            l->setVisible(false);
    }
    for (int i = 0; i <= 11; ++i) {
        m.FiringArc[i].setVisible(false);
        m.CFiringArc[i].setVisible(false);
    }
    m.AlphaImage.setRect({4320, 2880, 5400, 5400});
    m.OmegaImage.setRect({4320, 2880, 5400, 5400});
    m.Cline.setVisible(false);
    m.HScroll1.setVisible(false);
    m.VScroll1.setVisible(false);
    LayOutMainWindow(m);
}

void RegisterFields(FieldTable& table, MainSelection& m) {
    FieldNames b(table, "Form1", &m.Form1);
    b.window(m.Form1);
    b.one("Contents", m.Contents);
    b.array("Forward", m.Forward);
    b.array("Rear", m.Rear);
    b.array("CForward", m.CForward);
    b.array("CRear", m.CRear);
    b.array("ShipClass", m.ShipClass);
    b.array("ShipTier", m.ShipTier);
    b.array("ShipSubclass", m.ShipSubclass);
    b.array("PowerLevel", m.PowerLevel);
    b.array("TargetDistance", m.TargetDistance);
    b.array("ShuttleRank", m.ShuttleRank);
    b.array("ShuttleMod", m.ShuttleMod);
    b.one("Simplified", m.Simplified);
    b.array("ShipClasslabel", m.ShipClasslabel);
    b.array("ShipTierlabel", m.ShipTierlabel);
    b.array("ShipSubclassLabel", m.ShipSubclassLabel);
    b.array("PowerLevellabel", m.PowerLevellabel);
    b.array("TargetDistancelabel", m.TargetDistancelabel);
    b.array("ShuttleRankLabel", m.ShuttleRankLabel);
    b.one("ForwardWeaponlabel", m.ForwardWeaponlabel);
    b.one("CForwardWeaponlabel", m.CForwardWeaponlabel);
    b.one("RearWeaponlabel", m.RearWeaponlabel);
    b.one("CRearWeaponlabel", m.CRearWeaponlabel);
    b.one("Reset", m.Reset);
    b.one("CReset", m.CReset);
    b.array("Skills", m.Skills);
    b.array("Advanced", m.Advanced);
    b.one("GraphResults", m.GraphResults);
    b.one("Help", m.Help);
    b.one("ShowAbout", m.ShowAbout);
    b.one("Compare", m.Compare);
    b.one("HideCompare", m.HideCompare);
    b.one("Primarylabel", m.Primarylabel);
    b.one("Secondarylabel", m.Secondarylabel);
    b.one("Note", m.Note);
    b.one("FiringArcsLabel", m.FiringArcsLabel);
    b.array("FiringArcLabel", m.FiringArcLabel);
    b.array("FiringArcDPS", m.FiringArcDPS);
    b.array("CFiringArcLabel", m.CFiringArcLabel);
    b.array("CFiringArcDPS", m.CFiringArcDPS);
    b.array("FiringArc", m.FiringArc);
    b.array("CFiringArc", m.CFiringArc);
    b.one("AlphaImage", m.AlphaImage);
    b.one("OmegaImage", m.OmegaImage);
    b.one("Cline", m.Cline);
    b.array("ShipImageId", m.ShipImageId);
    b.one("HScroll1", m.HScroll1);
    b.one("VScroll1", m.VScroll1);
}

} // namespace vantorel
