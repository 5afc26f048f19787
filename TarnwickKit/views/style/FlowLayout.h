#pragma once

#include <QList>
#include <QPointF>
#include <QQuickItem>
#include <QSizeF>

#include <optional>
#include <vector>

namespace TarnwickKit::views {

/// Where children stand that wrap like words.
struct Flow {
    QList<QPointF> places; ///< top left corners
    double height = 0;
};

/// Lays children of their own sizes out in lines of `width`, `spacing` apart in both directions, lines
/// `lineSpacing` where it is given. A child wider than that gets a line of its own, over-long.
Flow flowLayout(const std::vector<QSizeF>& children, double width, double spacing,
                std::optional<double> lineSpacing = std::nullopt);

/// Lets its visible children wrap like words, in lines as wide as itself. Its height follows.
class FlowLayout : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double spacing READ spacing WRITE setSpacing NOTIFY spacingChanged)
    /// Between lines; as `spacing` until it is set.
    Q_PROPERTY(double lineSpacing READ lineSpacing WRITE setLineSpacing NOTIFY spacingChanged)

public:
    /// What is laid out in while no width is given.
    static constexpr double proposedWidth = 240;

    explicit FlowLayout(QQuickItem* parent = nullptr);

    double spacing() const { return m_spacing; }
    void setSpacing(double spacing);
    double lineSpacing() const { return m_lineSpacing.value_or(m_spacing); }
    void setLineSpacing(double spacing);
    Q_SIGNAL void spacingChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& to, const QRectF& from) override;
    void updatePolish() override;

private:
    void follow(QQuickItem* child);

    double m_spacing = 0;
    std::optional<double> m_lineSpacing;
};

} // namespace TarnwickKit::views
