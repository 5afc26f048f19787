#include "TarnwickKit/model/capacity/CapacityReport.h"

#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;

QString capacityReport(const CapacityRecord& check, LineStyle style) {
    constexpr int leastLabelColumns = 22;
    constexpr int leastColumns = 40;
    constexpr std::size_t mostPlaces = 1000;
    const int columns = std::max(style.columns, leastColumns);
    const auto paragraph = [columns](const QString& sentence) {
        return wrapped({}, harmless(sentence), columns);
    };
    QString text = paragraph(capacitySentence(check)) +
                   paragraph(Format::runStamp(check.date, 0).section(u" · "_s, 0, 1)) + u'\n';
    const std::vector<CapacityFact> facts = capacityFacts(check);
    int labelColumns = leastLabelColumns;
    for (const CapacityFact& fact : facts)
        labelColumns = std::max(labelColumns, columnsOf(fact.label) + 2);
    for (const CapacityFact& fact : facts)
        text += labelled(padded(fact.label, labelColumns), fact.value.split(u" · "_s), u" · "_s, columns);
    if (const QStringList places = capacityDefects(check, mostPlaces); !places.isEmpty()) {
        text += u'\n';
        for (const QString& place : places)
            text += paragraph(place);
    }
    text += u'\n';
    for (const QString& note : capacityNotes(check))
        text += paragraph(note);
    return text + (check.version ? u"\nOndel Tarnwick %1\n"_s.arg(harmless(*check.version)) : QString());
}

QString capacityReportName(const CapacityRecord& check) {
    QString name = check.title();
    name.replace(u'/', u'-').replace(u':', u'-');
    return QCoreApplication::translate("CapacityText", "Capacity of %1").arg(name) + u' ' +
           check.date.toLocalTime().date().toString(Qt::ISODate) + u".txt"_s;
}

} // namespace TarnwickKit::model
