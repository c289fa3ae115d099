// The rows of the log.
#include "window/records/LogModel.h"

#include <utility>

#include "engine/records/cScore.h"
#include "engine/records/mLog.h"
#include "window/records/mColumns.h"

LogModel::LogModel() : TableModel(mColumns::Of(mLog::Columns)), dates_(RegionalDates::Current()) {}

void LogModel::SetRecords(std::vector<int> indexes) {
    BeginRows();
    indexes_ = std::move(indexes);
    madeRow_ = -1;
    EndRows();
}

int LogModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(indexes_.size());
}

QString LogModel::Text(int row, int column) const {
    if (row != madeRow_) {
        made_ = mLog::Row(gScore->GetScore(indexes_.at(static_cast<std::size_t>(row))), dates_);
        madeRow_ = row;
    }
    return QString::fromStdString(made_.at(static_cast<std::size_t>(column)));
}

std::vector<double> LogModel::Keys(int column) const {
    return mLog::Keys(indexes_, column, [](const std::vector<std::string>& names) {
        std::vector<QString> texts;
        texts.reserve(names.size());
        for (const std::string& name : names) texts.push_back(QString::fromStdString(name));
        return Ranks(texts);
    });
}
