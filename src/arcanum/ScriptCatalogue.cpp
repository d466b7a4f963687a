// The readable templates behind condition and action codes, and the names of operand types.
#include "Script.h"

#include <string>

namespace arcanum {

namespace {

// Condition templates by catalogue index; the comment gives the code stored in a file (index + 1).
const char* const conditionTemplates[Script::ConditionCount] = {
        "it is daytime", // 1
        "(obj) has at least (num) gold", // 2
        "local flag (num) is set", // 3
        "(num) == (num)", // 4
        "(num) <= (num)", // 5
        "PC (obj) has quest (num) in state (num)", // 6
        "quest (num) in global state (num)", // 7
        "(obj) has bless (num)", // 8
        "(obj) has curse (num)", // 9
        "npc (obj) has met pc (obj) before", // 10
        "(obj) has bad associates", // 11
        "(obj) is polymorphed", // 12
        "(obj) is shrunk", // 13
        "(obj) has a body spell", // 14
        "(obj) is invisible", // 15
        "(obj) has mirror image", // 16
        "(obj) has item named (num)", // 17
        "npc (obj) is a follower of pc (obj)", // 18
        "npc (obj) is a monster of specie (num)", // 19
        "(obj) is named (num)", // 20
        "(obj) is wielding item named (num)", // 21
        "(obj) is dead", // 22
        "(obj) has maximum followers", // 23
        "(obj) can open the container (obj)", // 24
        "(obj) has surrendered", // 25
        "(obj) is in dialog", // 26
        "(obj) is switched off", // 27
        "(obj) can see (obj)", // 28
        "(obj) can hear (obj)", // 29
        "(obj) is invulnerable", // 30
        "(obj) is in combat", // 31
        "(obj) is at location X:(num) Y:(num)", // 32
        "(obj) has reputation (num)", // 33
        "(obj) is within (num) tiles of location X:(num) Y:(num)", // 34
        "(obj) is under the influence of spell (num)", // 35
        "(obj) is open", // 36
        "(obj) is an animal", // 37
        "(obj) is undead", // 38
        "(obj) was jilted by a PC", // 39
        "pc (obj) knows rumor (num)", // 40
        "rumor (num) has been quelled", // 41
        "(obj) is busted", // 42
        "global flag (num) is set", // 43
        "(obj) can open the portal (obj) in direction (num)", // 44
        "sector at location X:(num) and Y:(num) is blocked", // 45
        "monster generator (num) is disabled", // 46
        "(obj) is identified", // 47
        "(obj) knows spell (num)", // 48
        "(obj) has mastered spell college (num)", // 49
        "items are being rewielded", // 50
        "(obj) is prowling", // 51
        "(obj) is waiting for leader's return", // 52
};

// Action templates; the stored code is the index.
const char* const actionTemplates[Script::ActionCount] = {
        "do nothing", // 0
        "return and SKIP default", // 1
        "return and RUN default", // 2
        "goto line (num)", // 3
        "dialog (num)", // 4
        "remove this script", // 5
        "change this script to script (num)", // 6
        "call script (num) at line (num) with triggerer (obj) and attachee (obj)", // 7
        "set local flag (num) to true", // 8
        "clear local flag (num)", // 9
        "(num) = (num)", // 10
        "(num) = (num) + (num)", // 11
        "(num) = (num) - (num)", // 12
        "(num) = (num) * (num)", // 13
        "(num) = (num) / (num)", // 14
        "(obj) = (obj)", // 15
        "set PC (obj) quest (num) to state (num)", // 16
        "set quest (num) to global state (num)", // 17
        "loop for (obj)", // 18
        "loop end", // 19
        "loop break", // 20
        "have critter (obj) become a follower of (obj)", // 21
        "have critter (obj) stop following his leader", // 22
        "float line (num) above (obj)", // 23
        "print line (num) with a message class of (num)", // 24
        "add blessing (num) to (obj)", // 25
        "remove blessing (num) from (obj)", // 26
        "add curse (num) to (obj)", // 27
        "remove curse (num) from (obj)", // 28
        "reaction of npc (obj) to pc (obj): store in (num)", // 29
        "reaction of npc (obj) to pc (obj): set to (num)", // 30
        "reaction of npc (obj) to pc (obj): adjust by (num)", // 31
        "armor of (obj): get in (num)", // 32
        "stat (num) of (obj): store in (num)", // 33
        "object type of (obj): store in (num)", // 34
        "gold of (obj): adjust by (num)", // 35
        "combat: (obj) attacks (obj)", // 36
        "random number (num) to (num): store in (num)", // 37
        "social class of npc (obj): store in (num)", // 38
        "origin of npc (obj): store in (num)", // 39
        "transform Attachee into basic prototype (num)", // 40
        "transfer item named (num) from (obj) to (obj)", // 41
        "story state: store in (num)", // 42
        "story state: set to (num)", // 43
        "teleport (obj) to map (num) at X:(num) Y:(num)", // 44
        "set day standpoint of critter (obj) to X:(num) Y:(num) on this map", // 45
        "set night standpoint of critter (obj) to X:(num) Y:(num) on this map", // 46
        "skill (num) of (obj): store in (num)", // 47
        "spells: have (obj) cast spell (num) on (obj)", // 48
        "mark map location (num) of pc (obj) as known", // 49
        "rumor: set rumor (num) for pc (obj)", // 50
        "rumor: quell rumor (num) for pc (obj)", // 51
        "create object with basic prototype (num) near (obj)", // 52
        "lock state of (obj): set to (num)", // 53
        "call script (num) at line (num) with triggerer (obj) and attachee (obj) in (num) seconds", // 54
        "call script (num) at line (num) with triggerer (obj) and attachee (obj) at second (num)", // 55
        "toggle (obj) state on/off", // 56
        "toggle (obj) invulnerability", // 57
        "kill (obj)", // 58
        "change art num of (obj) to (num)", // 59
        "damage (obj) for (num) points of type (num) damage", // 60
        "spells: cast spell (num) on (obj)", // 61
        "have (obj) perform animation (num)", // 62
        "give (obj) xps for a quest level (num)", // 63
        "written UI start: book (num) for reader (obj)", // 64
        "written UI start: image (num) for reader (obj)", // 65
        "create item with basic prototype (num) inside (obj)", // 66
        "have critter (obj) wait for his leader", // 67
        "destroy (obj)", // 68
        "have critter (obj) walk to X:(num) Y:(num)", // 69
        "weapon of (obj): get in (num)", // 70
        "distance between (obj) and (obj): get in (num)", // 71
        "reputation: give (obj) the reputation (num)", // 72
        "reputation: remove from (obj) the reputation (num)", // 73
        "have critter (obj) run to X:(num) Y:(num)", // 74
        "heal (obj) for (num) points", // 75
        "heal (obj) for (num) fatigue points", // 76
        "give (obj) the effect (num) with cause (num)", // 77
        "remove from (obj) the effect (num)", // 78
        "have (obj) use (obj) on (obj) using skill (num) with modifier (num)", // 79
        "magic/tech: adjust (num) by item (obj) used by (obj) on (obj): store in (num)", // 80
        "call script attached to (obj) at point (num) at line (num) with triggerer (obj)", // 81
        "play sound (num)", // 82
        "play sound (num) at (obj)", // 83
        "area of (obj): store in (num)", // 84
        "newspaper: queue (num) with priority (num)", // 85
        "newspaper: float current headline over (obj)", // 86
        "play sound scheme (num) and (num)", // 87
        "toggle (obj) open/closed", // 88
        "faction of npc (obj): store in (num)", // 89
        "scroll distance: store in (num)", // 90
        "magic/tech: adjust (num) by item (obj) used by (obj): store in (num)", // 91
        "rename (obj) as (num)", // 92
        "have (obj) instantly become prone", // 93
        "written start in (obj) set to (num)", // 94
        "get location of (obj) and store X in (num) and Y in (num)", // 95
        "day: store days since startup in (num)", // 96
        "hour: store current game hour in (num)", // 97
        "minute: store current game minute in (num)", // 98
        "change script attached to (obj) at point (num) to script (num)", // 99
        "set global flag (num) to true", // 100
        "clear global flag (num)", // 101
        "fade and teleport: pass (num) seconds, play (num) sound, play (num) movie, and teleport (obj) to map (num) at X:(num) Y:(num)", // 102
        "fade: pass (num) seconds, play (num) sound, and play (num) movie, with (num) seconds during fade", // 103
        "spell eye candy: play (num) on (obj)", // 104
        "hour: store hours since startup in (num)", // 105
        "toggle the blocked state of sector at location X:(num) and Y:(num)", // 106
        "hit points of (obj): store current in (num) and maximum in (num)", // 107
        "fatigue of critter (obj): store current in (num) and maximum in (num)", // 108
        "combat: force (obj) to stop attacking", // 109
        "toggle monster generator (num) on/off", // 110
        "armor coverage of item (obj): store in (num)", // 111
        "give (obj) spell mastery in college (num)", // 112
        "unfog townmap (num)", // 113
        "written UI start: plaque (num) for reader (obj)", // 114
        "have (obj) try to steal 100 coins from (obj)", // 115
        "spell eye candy: stop (num) on (obj)", // 116
        "grant one fate point to (obj)", // 117
        "spells: have (obj) cast free spell (num) on (obj)", // 118
        "set PC (obj) quest (num) to state unbotched", // 119
        "script eye candy: play (num) on (obj)", // 120
        "spells: have (obj) cast unresistable spell (num) on (obj)", // 121
        "spells: have (obj) cast free and unresistable spell (num) on (obj)", // 122
        "touch art (num)", // 123
        "script eye candy: stop (num) on (obj)", // 124
        "remove from time queue the call to script (num) with attachee (obj)", // 125
        "destroy item named (num) in inventory of (obj)", // 126
        "toggle item (obj) inventory display on/off", // 127
        "heal (obj) for (num) poison points", // 128
        "schematic UI start: display for (obj)", // 129
        "spells: stop spell (num) on (obj)", // 130
        "slideshow: queue slide (num)", // 131
        "end game and play slides", // 132
        "rotation of (obj): set to (num)", // 133
        "faction of npc (obj): set to (num)", // 134
        "drain (num) charges from (obj)", // 135
        "spells: cast unresistable spell (num) on (obj)", // 136
        "stat (num) of (obj): adjust by (num)", // 137
        "damage (obj) unresistably for (num) points of type (num) damage", // 138
        "autolevel scheme for (obj): change to (num)", // 139
        "set day standpoint of critter (obj) to X:(num) Y:(num) on map (num)", // 140
        "set night standpoint of critter (obj) to X:(num) Y:(num) on map (num)", // 141
};

const char* const numTypeNames[Script::NumTypeCount] = {
        "Counter", // 0
        "Global Var", // 1
        "Local Var", // 2
        "Number", // 3
        "Global Flag", // 4
        "PC Var", // 5
        "PC Flag", // 6
};

const char* const objectTypeNames[Script::ObjectTypeCount] = {
        "Triggerer", // 0
        "Attachee", // 1
        "Every follower (SP)", // 2
        "Any follower (SP)", // 3
        "Everyone in party PC only (MP)", // 4
        "Anyone in party PC only (MP)", // 5
        "Everyone in team PC and NPC (MP)", // 6
        "Anyone in team PC and NPC (MP)", // 7
        "Everyone in vicinity", // 8
        "Anyone in vicinity", // 9
        "Current looped object", // 10
        "Local object", // 11
        "Extra object", // 12
        "Everyone in group PC and NPC (SP)", // 13
        "Anyone in group PC and NPC (SP)", // 14
        "Every scenery in vicinity", // 15
        "Any scenery in vicinity", // 16
        "Every container in vicinity", // 17
        "Any container in vicinity", // 18
        "Every portal in vicinity", // 19
        "Any portal in vicinity", // 20
        "Player", // 21
        "Every item in vicinity", // 22
        "Any item in vicinity", // 23
};

} // namespace

std::string Script::unknownText(const char* what, qint64 value)
{
    return std::string("unknown ") + what + ' ' + std::to_string(value);
}

bool Script::isConditionCode(Ifcode code)
{
    return code >= 1 && code <= ConditionCount;
}

bool Script::isActionCode(Opcode code)
{
    return code >= 0 && code < ActionCount;
}

std::string Script::conditionString(Ifcode index)
{
    if (index < 0 || index >= ConditionCount)
        return unknownText("condition", qint64(index) + 1);
    return conditionTemplates[index];
}

std::string Script::actionString(Opcode code)
{
    if (!isActionCode(code))
        return unknownText("action", code);
    return actionTemplates[code];
}

std::string Script::numTypeToString(NumType t)
{
    if (t >= NumTypeCount)
        return unknownText("number type", t);
    return numTypeNames[t];
}

std::string Script::objectTypeToString(ObjectType t)
{
    if (t >= ObjectTypeCount)
        return unknownText("object type", t);
    return objectTypeNames[t];
}

} // namespace arcanum
