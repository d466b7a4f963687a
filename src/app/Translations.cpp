#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool Translations::install(const QLocale& locale)
{
    // Owned by the application, which keeps them until it ends.
    auto* own = new QTranslator(QCoreApplication::instance());
    if (!own->load(locale, QStringLiteral("qtLoreka"), QStringLiteral("_"), QStringLiteral(":/i18n"))) {
        delete own;
        return false;
    }
    QCoreApplication::installTranslator(own);
    auto* qt = new QTranslator(QCoreApplication::instance());
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
    return true;
}
