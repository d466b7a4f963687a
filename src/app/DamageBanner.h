#pragma once

#include <QLabel>

class Document;

// The strip over a page that says what is wrong with the file it shows; hidden for a sound file.
class DamageBanner : public QLabel
{
    Q_OBJECT

public:
    explicit DamageBanner(QWidget* parent = nullptr);

    void showDamageOf(const Document* document);
};
