#pragma once

class QLocale;

// The interface's language: our own texts and Qt's standard dialogs, for the user's locale.
class Translations
{
public:
    // Installs the translators for locale on the running application; false when we have none for it
    // (the interface stays in English).
    static bool install(const QLocale& locale);
};
