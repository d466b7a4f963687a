#pragma once

// Every dialogue opcode once, in the order of the row editor's opcode chooser (the position in a list
// is the chooser index). Columns: constant name, code as written in files, number of integer arguments,
// chooser label, and the kind of settings class (Plain: generic controls; Comparison: ">=" or "<=" and
// one amount, shown as one sentence). A list is expanded with a macro X taking these five columns.
// Argument counts are what the game expects, even where a test and a result of the same code differ.

#define ARCANUM_DLG_TESTS(X)                                                                     \
    X(TEST_MONEY, "$$", 1, "Money", Comparison)                                                  \
    X(TEST_ALIGNMENT, "al", 1, "al", Plain)                                                      \
    X(TEST_KNOWS_AREA, "ar", 1, "ar", Plain)                                                     \
    X(TEST_CHARISMA, "ch", 1, "ch", Plain)                                                       \
    X(TEST_IS_FOLLOWER, "fo", 1, "fo", Plain)                                                    \
    X(TEST_GLOBAL_FLAG, "gf", 2, "gf", Plain)                                                    \
    X(TEST_GLOBAL_VAR, "gv", 2, "gv", Plain)                                                     \
    X(TEST_HAGGLE, "ha", 1, "ha", Plain)                                                         \
    X(TEST_IN_AREA, "ia", 1, "ia", Plain)                                                        \
    X(TEST_HAS_ITEM, "in", 1, "in", Plain)                                                       \
    X(TEST_LOCAL_COUNTER, "lc", 2, "lc", Plain)                                                  \
    X(TEST_LEVEL, "le", 1, "le", Plain)                                                          \
    X(TEST_LOCAL_FLAG, "lf", 2, "lf", Plain)                                                     \
    X(TEST_MAGIC_APT, "ma", 1, "ma", Plain)                                                      \
    X(TEST_HAS_MET, "me", 1, "me", Plain)                                                        \
    X(TEST_NEG_ALIGNMENT, "na", 1, "na", Plain)                                                  \
    X(TEST_NOT_HAVE_ITEM, "ni", 1, "ni", Plain)                                                  \
    X(TEST_FOLLOWER_IN_PARTY, "pa", 1, "pa", Plain)                                              \
    X(TEST_PERCEPTION, "pe", 1, "pe", Plain)                                                     \
    X(TEST_PC_FLAG, "pf", 2, "pf", Plain)                                                        \
    X(TEST_PERSUASION, "ps", 1, "ps", Plain)                                                     \
    X(TEST_PC_VAR, "pv", 2, "pv", Plain)                                                         \
    X(TEST_QUEST_STATE_GREATER_OR_EQUAL, "qa", 2, "qa", Plain)                                   \
    X(TEST_QUEST_STATE_SMALLER_OR_EQUAL, "qb", 2, "qb", Plain)                                   \
    X(TEST_QUEST_IN_STATE, "qu", 2, "qu", Plain)                                                 \
    X(TEST_RACE, "ra", 1, "ra", Plain)                                                           \
    X(TEST_REACTION, "re", 1, "Reaction", Comparison)                                            \
    X(TEST_REPUTATION, "rp", 1, "rp", Plain)                                                     \
    X(TEST_RUMOUR_QUELLED, "rq", 1, "rq", Plain)                                                 \
    X(TEST_HAS_RUMOUR, "ru", 1, "ru", Plain)                                                     \
    X(TEST_KNOWS_NUM_SPELLS_IN_COLLEGE, "sc", 2, "sc", Plain)                                    \
    X(TEST_SKILL, "sk", 2, "sk", Plain)                                                          \
    X(TEST_STORY_STATE, "ss", 1, "ss", Plain)                                                    \
    X(TEST_TECH_APT, "ta", 1, "ta", Plain)                                                       \
    X(TEST_TRAINING_STATE, "tr", 2, "tr", Plain)                                                 \
    X(TEST_NPC_WAITING, "wa", 1, "wa", Plain)                                                    \
    X(TEST_WAIT_TIME_EXPIRED, "wt", 1, "wt", Plain)

#define ARCANUM_DLG_RESULTS(X)                                                                   \
    X(RESULT_MONEY, "$$", 1, "$$", Plain)                                                        \
    X(RESULT_ALIGNMENT, "al", 1, "al", Plain)                                                    \
    X(RESULT_CHAR_EDITOR, "ce", 0, "ce", Plain)                                                  \
    X(RESULT_START_COMBAT, "co", 0, "co", Plain)                                                 \
    X(RESULT_EXPERT_TRAINING, "et", 2, "et", Plain)                                              \
    X(RESULT_FLOAT_LINE, "fl", 1, "fl", Plain)                                                   \
    X(RESULT_FATE_POINT, "fp", 0, "fp", Plain)                                                   \
    X(RESULT_GLOBAL_FLAG, "gf", 2, "gf", Plain)                                                  \
    X(RESULT_GLOBAL_VAR, "gv", 2, "gv", Plain)                                                   \
    X(RESULT_IDENTIFY, "ii", 0, "ii", Plain)                                                     \
    X(RESULT_TRANSFER_ITEM, "in", 1, "in", Plain)                                                \
    X(RESULT_JOIN_GROUP_TEST, "jo", 2, "jo", Plain)                                              \
    X(RESULT_LOCAL_COUNTER, "lc", 2, "lc", Plain)                                                \
    X(RESULT_LOCAL_FLAG, "lf", 2, "lf", Plain)                                                   \
    X(RESULT_LEAVE_PARTY, "lv", 0, "lv", Plain)                                                  \
    X(RESULT_MARK_MAP, "mm", 1, "mm", Plain)                                                     \
    X(RESULT_NPC_KILL, "nk", 0, "nk", Plain)                                                     \
    X(RESULT_NEWSPAPER, "np", 2, "np", Plain)                                                    \
    X(RESULT_ORIGIN, "or", 1, "or", Plain)                                                       \
    X(RESULT_PC_FLAG, "pf", 2, "pf", Plain)                                                      \
    X(RESULT_PC_VAR, "pv", 2, "pv", Plain)                                                       \
    X(RESULT_QUEST_STATE, "qu", 2, "qu", Plain)                                                  \
    X(RESULT_REACTION, "re", 1, "re", Plain)                                                     \
    X(RESULT_REPAIR, "ri", 0, "ri", Plain)                                                       \
    X(RESULT_REPUTATION, "rp", 1, "rp", Plain)                                                   \
    X(RESULT_QUELL_RUMOUR, "rq", 1, "rq", Plain)                                                 \
    X(RESULT_ADD_RUMOUR, "ru", 1, "ru", Plain)                                                   \
    X(RESULT_STAY_CLOSE, "sc", 0, "sc", Plain)                                                   \
    X(RESULT_SPREAD_OUT, "so", 0, "so", Plain)                                                   \
    X(RESULT_STORY_STATE, "ss", 1, "ss", Plain)                                                  \
    X(RESULT_SCHEMATIC, "su", 0, "su", Plain)                                                    \
    X(RESULT_TRAINING, "tr", 1, "tr", Plain)                                                     \
    X(RESULT_UNWAIT, "uw", 2, "uw", Plain)                                                       \
    X(RESULT_WAIT, "wa", 0, "wa", Plain)                                                         \
    X(RESULT_XP, "xp", 0, "xp", Plain)
