#include "TarnwickKit/model/session/SMARTReport.h"

#include "TarnwickKit/model/format/Format.h"

#include <QList>
#include <QStringList>

#include <algorithm>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::health::DiskSMART;

namespace {

struct Row {
    QString label;
    QString value;
    bool warning = false;
};

qsizetype characterCount(const QString& text) { return text.toUcs4().size(); }

/// Lines with their values in one column, one blank behind the longest label's colon.
QStringList aligned(const QList<Row>& rows) {
    qsizetype width = 0;
    for (const Row& row : rows)
        width = std::max(width, characterCount(row.label) + 2);
    QStringList lines;
    for (const Row& row : rows) {
        const QString head = row.label + u':';
        lines << head + QString(width - characterCount(head), u' ') + row.value +
                     (row.warning ? u"  (attention)"_s : QString());
    }
    return lines;
}

QList<Row> header(const DiskSMART& smart, const std::optional<QString>& drive, const QString& date) {
    QList<Row> rows;
    if (drive)
        rows << Row{u"Drive"_s, *drive};
    if (!smart.kind.empty())
        rows << Row{u"Interface"_s, QString::fromStdString(smart.kind)};
    const bool isFailing = smart.status == DiskSMART::Status::failing;
    return rows << Row{u"Date"_s, date} << Row{u"Status"_s, isFailing ? u"Failing"_s : u"Verified"_s};
}

QList<Row> healthRows(const DiskSMART& smart) {
    QList<Row> rows;
    for (const DiskSMART::Attribute& attribute : smart.attributes)
        rows << Row{QString::fromStdString(attribute.label), QString::fromStdString(attribute.value),
                    attribute.warning};
    return rows;
}

} // namespace

QString SMARTReport::fileName(const std::optional<QString>& drive, const QDateTime& date) {
    QString name = drive.value_or(u"Drive"_s);
    name.replace(u'/', u'-').replace(u':', u'-');
    return u"S.M.A.R.T. "_s + name + u' ' + date.toLocalTime().date().toString(Qt::ISODate) + u".txt"_s;
}

QString SMARTReport::text(const DiskSMART& smart, const std::optional<QString>& drive,
                          const QDateTime& date) {
    return text(smart, drive, date, Formatter::user());
}

QString SMARTReport::text(const DiskSMART& smart, const std::optional<QString>& drive, const QDateTime& date,
                          const Formatter& formatter) {
    QStringList lines{u"Ondel Tarnwick S.M.A.R.T. report"_s, QString()};
    lines << aligned(header(smart, drive, formatter.dateAndTime(date))) << QString()
          << aligned(healthRows(smart));
    return lines.join(u'\n') + u'\n';
}

} // namespace TarnwickKit::model
