#pragma once

#include <QString>
#include <QWidget>

// Placeholder page until the script editor lands.
class ScriptWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ScriptWidget(QWidget* parent = nullptr);
    bool loadScript(const QString& path);
    // The file the page shows and saves to.
    QString getPath() const { return path; }

private:
    QString path;
};
