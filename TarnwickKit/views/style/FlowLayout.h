#pragma once

#include <QList>
#include <QPointF>
#include <QQuickItem>
#include <QSizeF>

#include <optional>
#include <vector>

namespace TarnwickKit::views {

/// The positions of children that wrap like words.
struct Flow {
    QList<QPointF> places; ///< top left corners
    double height = 0;
};

/// Arranges children in lines of `width`, `spacing` apart in both directions; `lineSpacing` overrides the
/// distance of lines. A child wider than `width` gets a line of its own and overflows it.
Flow flowLayout(const std::vector<QSizeF>& children, double width, double spacing,
                std::optional<double> lineSpacing = std::nullopt);

/// Wraps its visible children like words within its own width. Its implicit height is that of the lines.
class FlowLayout : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double spacing READ spacing WRITE setSpacing NOTIFY spacingChanged)
    /// Between lines; equals `spacing` until it is set.
    Q_PROPERTY(double lineSpacing READ lineSpacing WRITE setLineSpacing NOTIFY spacingChanged)
    /// Lines begin at the right.
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY spacingChanged)

public:
    /// The implicit width.
    static constexpr double proposedWidth = 240;

    explicit FlowLayout(QQuickItem* parent = nullptr);

    double spacing() const { return m_spacing; }
    void setSpacing(double spacing);
    double lineSpacing() const { return m_lineSpacing.value_or(m_spacing); }
    void setLineSpacing(double spacing);
    bool isMirrored() const { return m_isMirrored; }
    void setMirrored(bool mirrored);
    Q_SIGNAL void spacingChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& to, const QRectF& from) override;
    void updatePolish() override;

private:
    void follow(QQuickItem* child);

    double m_spacing = 0;
    std::optional<double> m_lineSpacing;
    bool m_isMirrored = false;
};

} // namespace TarnwickKit::views
