#pragma once
// The result list of the factoring windows follows the core's lines: they are only added or the
// last ones amended, so syncing starts two lines before the shorter end.
#include <QListWidget>
#include <QString>

#include <algorithm>
#include <string>
#include <vector>

namespace numbers {

inline void syncLines(QListWidget* lb, const std::vector<std::string>& lines)
{
    const int n = static_cast<int>(lines.size());
    for (int i = std::max(0, std::min(lb->count(), n) - 2); i < n; ++i) {
        const QString t = QString::fromStdString(lines[static_cast<size_t>(i)]);
        if (i < lb->count())
            lb->item(i)->setText(t);
        else
            lb->addItem(t);
    }
    lb->scrollToBottom();
}

}  // namespace numbers
