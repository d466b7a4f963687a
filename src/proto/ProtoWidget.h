#pragma once

#include <QWidget>

#include <string>

// Placeholder page until the prototype editor lands.
class ProtoWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ProtoWidget(QWidget* parent = nullptr);
    bool loadProto(const std::string& path);
    // The file the page shows.
    std::string getPath() const { return path; }

private:
    std::string path;
};
