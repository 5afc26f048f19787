#include "TarnwickKit/model/format/RemarkText.h"

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkWeight;

QString remarkSentence(const Remark& remark) { return QString::fromUtf8(rawValue(remark.code)); }

QString remarkAdvice(const Remark&) { return {}; }

QString remarkWeightWord(RemarkWeight weight) {
    switch (weight) {
    case RemarkWeight::invalid:
        return u"Invalid"_s;
    case RemarkWeight::caution:
        return u"Caution"_s;
    case RemarkWeight::note:
        break;
    }
    return u"Note"_s;
}

} // namespace TarnwickKit::model
