#pragma once

#include <QString>
#include <QWidget>

// Placeholder page until the message editor lands.
class MesWidget : public QWidget
{
    Q_OBJECT

public:
    MesWidget(QWidget* parent, QString encoding);
    void loadMes(const QString& path);
    // The file the page shows.
    QString getFilename() const { return path; }

private:
    QString path;
};
