#pragma once

#include <QString>

// Where each kind of data file lives below the game's base directory, and texts the models share.
namespace arcanum {

inline const QString SCRIPTS_DIR = QStringLiteral("data/scr/");
inline const QString MES_DIR = QStringLiteral("data/mes/");
inline const QString RULES_DIR = QStringLiteral("data/rules/");
inline const QString SEMES_DIR = QStringLiteral("data/semes/");
inline const QString OEMES_DIR = QStringLiteral("data/oemes/");
inline const QString DLG_DIR = QStringLiteral("data/dlg/");
inline const QString PROTO_DIR = QStringLiteral("data/proto/");
inline const QString ART_DIR = QStringLiteral("data/art/");

inline constexpr QChar OPEN_CHAR = u'{';
inline constexpr QChar CLOSE_CHAR = u'}';

inline const QString OUT_OF_BOUNDS = QStringLiteral("OUT OF BOUNDS");
inline const QString NO_ERROR = QStringLiteral("No error");
inline const QString EMPTY_STR;
inline const QString WIN_ENDLINE = QStringLiteral("\r\n");
inline const QString VERSION_STRING = QStringLiteral(LOREKA_VERSION);

} // namespace arcanum
