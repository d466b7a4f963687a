#pragma once

#include "Mesfile.h"

#include <QStringList>

namespace arcanum {

// A dialogue file seen as a plain table: "{index}{text}{gender}{int}{condition}{response}{result}".
// The fields are shown as they stand; only the tool tips hint at what they mean.
class DialogueFile : public Mesfile
{
    Q_DECLARE_TR_FUNCTIONS(DialogueFile)

public:
    static constexpr unsigned ITEM_COUNT = 6;

    class DialogueEntry : public Entry
    {
    public:
        explicit DialogueEntry(QString& chunk);
        QString getItemAt(unsigned index) const override;
        void setItemAt(unsigned index, const QString& text) override;
        QString getInfoAbout(EntryType type) const override;
        unsigned getItemCount() const override { return ITEM_COUNT; }
        QString getLine() const override;

    private:
        void readFields(const QString& chunk, int indexClose);
        void fillMissingItems();
        QString genderInfo() const;
        QString intelligenceInfo() const;

        QStringList items;
    };

    explicit DialogueFile(const QString& fileName = QString());

    unsigned getItemCount() const override { return ITEM_COUNT; }
    QString getColumnTitle(EntryType type) const override;
    Entry* newEntry(QString& chunk) override;
};

} // namespace arcanum
