#pragma once

#include "Artfile.h"
#include "Document.h"

#include <memory>

// An open art file. The page's lists and editors change it in place and record each change as one step.
class ArtDocument : public Document
{
    Q_OBJECT

public:
    // Null and the model's reason, with its offset, when the file is refused.
    static std::unique_ptr<ArtDocument> fromBytes(const QString& path, const QByteArray& bytes, QString& error);

    arcanum::Artfile& art() { return model; }
    const arcanum::Artfile& art() const { return model; }

    bool serialize(QByteArray& bytes, QString& error) const override;
    QString damage() const override;

protected:
    void restoreModel(const QByteArray& bytes) override;

private:
    explicit ArtDocument(const QString& path);

    arcanum::Artfile model;
};
