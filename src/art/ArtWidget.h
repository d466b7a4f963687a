#pragma once

#include <QWidget>

#include <string>

// Placeholder page until the art editor lands.
class ArtWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ArtWidget(QWidget* parent = nullptr);
    void loadArt(const std::string& path);
    // The file the page shows.
    std::string getPath() const { return path; }

private:
    std::string path;
};
