#pragma once

#include "Document.h"
#include "Proto.h"

#include <memory>

// An open prototype. The form writes the model in place and records each change as one step.
class ProtoDocument : public Document
{
    Q_OBJECT

public:
    // Null and the model's reason, with its offset, when the file is refused.
    static std::unique_ptr<ProtoDocument> fromBytes(const QString& path, const QByteArray& bytes, QString& error);

    arcanum::Proto& proto() { return model; }
    const arcanum::Proto& proto() const { return model; }

    bool serialize(QByteArray& bytes, QString& error) const override;

protected:
    void restoreModel(const QByteArray& bytes) override;

private:
    explicit ProtoDocument(const QString& path);

    arcanum::Proto model;
};
