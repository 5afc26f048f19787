#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace TarnwickKit::model {

/// A compiled catalogue, as lrelease writes it, in a form that QTranslator can read; empty if one of its
/// texts does not lie inside of the file. QTranslator believes every length that it finds, and reads beyond
/// the end of a damaged file. It does so even in a sound one that has a table of contexts (lrelease
/// -compress): that is left out, and nothing is lost but a short cut. Catalogues that load others are none of
/// ours.
QByteArray wholeCatalogue(QByteArrayView file);

} // namespace TarnwickKit::model
