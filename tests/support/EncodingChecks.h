#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

class Page;

// The encoding strip of a text page, the same on every such page.
namespace EncodingChecks {

// path holds bytes that do not read in the page's default encoding but read as wanted. On a fresh
// page: opening shows the strip with wanted as the first suggestion; clicking it reads the file in
// wanted (the list follows, the strip goes); a second fresh page reopens the file in wanted; saving
// there writes the bytes back unchanged.
void suggestionReadsTheFile(const std::function<std::unique_ptr<Page>()>& makePage, const QString& path,
                            const QByteArray& bytes, const QByteArray& wanted);

} // namespace EncodingChecks
