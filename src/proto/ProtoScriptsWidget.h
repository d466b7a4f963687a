#pragma once

#include "ProtoRecords.h"

#include <QWidget>

#include <array>
#include <map>
#include <memory>

class QCheckBox;
class QToolButton;
class Ui_ProtoScriptsWidget;

// The 36 script points of an item: a checked row has a script, its button opens the script's
// arguments in DialogProtoScript.
class ProtoScriptsWidget : public QWidget
{
    Q_OBJECT

public:
    using Scripts = arcanum::Proto::Scripts;
    using ScriptArgs = arcanum::Proto::ScriptArgs;

    explicit ProtoScriptsWidget(QWidget* parent = nullptr);
    ~ProtoScriptsWidget() override;

    // A null record shows no scripts.
    void setScripts(const Scripts* scripts);
    Scripts getScripts() const;

    QCheckBox* rowCheck(int point) const;
    QToolButton* rowButton(int point) const;

signals:
    void beenEdited();

private slots:
    void on_groupBox_toggled(bool on);

private:
    void addRows();
    void rowToggled(int point, bool on);
    void editScript(int point);
    void redrawButton(int point);
    void reportEdit();

    std::unique_ptr<Ui_ProtoScriptsWidget> ui;
    std::array<QCheckBox*, Scripts::ROOM> checks{};
    std::array<QToolButton*, Scripts::ROOM> buttons{};
    std::map<int, ScriptArgs> args;
    Scripts original;
    bool updating = false;
};
