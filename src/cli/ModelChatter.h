#pragma once

#include <QtGlobal>

#include <streambuf>

// The models explain their failures on standard output and through qWarning, for the editor's
// console. The command line reports problems in its own words, so while this object lives their
// chatter is dropped and standard output carries only what a command prints.
class ModelChatter
{
public:
    ModelChatter();
    ~ModelChatter();
    ModelChatter(const ModelChatter&) = delete;
    ModelChatter& operator=(const ModelChatter&) = delete;

private:
    std::streambuf* savedBuffer;
    QtMessageHandler savedHandler;
};
