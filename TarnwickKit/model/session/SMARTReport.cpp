#include "TarnwickKit/model/session/SMARTReport.h"

#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/HealthText.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

#include <algorithm>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::health::DiskSMART;

namespace {

struct SMARTReportText {
    Q_DECLARE_TR_FUNCTIONS(SMARTReportText)
};

struct Row {
    QString label;
    QString value;
    bool warning = false;
};

/// Lines with their values in one column, one blank behind the longest label's colon.
QStringList aligned(const QList<Row>& rows) {
    QStringList lines;
    int width = 0;
    for (const Row& row : rows) {
        //: %1 is the name of a figure, which follows
        lines << SMARTReportText::tr("%1:").arg(row.label);
        width = std::max(width, columnsOf(lines.last()) + 1);
    }
    for (qsizetype index = 0; index < rows.size(); ++index) {
        const Row& row = rows[index];
        QString& line = lines[index];
        line += QString(width - columnsOf(line), u' ');
        //: Behind a figure that is a concern
        line += row.warning ? SMARTReportText::tr("%1  (attention)").arg(row.value) : row.value;
    }
    return lines;
}

QList<Row> header(const DiskSMART& smart, const std::optional<QString>& drive, const QString& date) {
    QList<Row> rows;
    if (drive)
        rows << Row{SMARTReportText::tr("Drive"), *drive};
    if (!smart.kind.empty())
        rows << Row{SMARTReportText::tr("Interface"), QString::fromStdString(smart.kind)};
    rows << Row{SMARTReportText::tr("Date"), date};
    //: The drive's own verdict follows
    return rows << Row{SMARTReportText::tr("Status"), healthVerdict(smart.status)};
}

QList<Row> healthRows(const DiskSMART& smart) {
    QList<Row> rows;
    for (const DiskSMART::Attribute& attribute : smart.attributes)
        rows << Row{healthLabel(attribute), healthValue(attribute), attribute.warning};
    return rows;
}

} // namespace

QString SMARTReport::fileName(const std::optional<QString>& drive, const QDateTime& date) {
    QString name = drive.value_or(SMARTReportText::tr("Drive"));
    name.replace(u'/', u'-').replace(u':', u'-');
    return u"S.M.A.R.T. "_s + name + u' ' + date.toLocalTime().date().toString(Qt::ISODate) + u".txt"_s;
}

QString SMARTReport::text(const DiskSMART& smart, const std::optional<QString>& drive,
                          const QDateTime& date) {
    return text(smart, drive, date, Formatter::user());
}

QString SMARTReport::text(const DiskSMART& smart, const std::optional<QString>& drive, const QDateTime& date,
                          const Formatter& formatter) {
    QStringList lines{SMARTReportText::tr("Ondel Tarnwick S.M.A.R.T. report"), QString()};
    lines << aligned(header(smart, drive, formatter.dateAndTime(date))) << QString()
          << aligned(healthRows(smart));
    return lines.join(u'\n') + u'\n';
}

} // namespace TarnwickKit::model
