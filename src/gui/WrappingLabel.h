#pragma once

#include <QFont>
#include <QHash>
#include <QLabel>
#include <QMargins>
#include <QSizePolicy>

#include <optional>

namespace tarnic {

// A label that wraps its text, and remembers what it measured. The layouts ask a wrapping label
// for its height at one width after another, several times over before the first frame, and
// QLabel lays its text out anew for every question (a text layout each time). The answers depend
// only on what is compared below, so they are kept until one of those changes.
class WrappingLabel : public QLabel {
    Q_OBJECT
public:
    explicit WrappingLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

private:
    // Everything a text label's measures depend on.
    struct Inputs {
        QString text;
        Qt::TextFormat format = Qt::AutoText;
        QFont font;
        Qt::Alignment alignment;
        bool wordWrap = false;
        int indent = 0;
        int margin = 0;
        QMargins contents;
        int frameWidth = 0;
        const QStyle* style = nullptr;
        Qt::LayoutDirection direction = Qt::LeftToRight;
        QSizePolicy policy;
        bool hasPicture = false;
        bool operator==(const Inputs&) const = default;
    };
    Inputs inputs() const;
    // Forgets every kept answer when the inputs are not those they were found for.
    void keepCurrent() const;

    mutable std::optional<Inputs> measuredFor_;
    mutable std::optional<QSize> sizeHint_;
    mutable std::optional<QSize> minimumSizeHint_;
    mutable QHash<int, int> heights_;
};

} // namespace tarnic
