#include "gui/ApplicationStyle.h"
#include "gui/StyleImages.h"

#include <QApplication>
#include <QImage>
#include <QMainWindow>
#include <QMenuBar>
#include <QPixmapCache>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTest>
#include <QToolButton>

#include <memory>

#include <gtest/gtest.h>

namespace tarnic::test {
namespace {

// The style Qt picks by itself here, or the one QT_STYLE_OVERRIDE names.
QString expectedStyleName() {
    const QString named = qEnvironmentVariable("QT_STYLE_OVERRIDE");
    std::unique_ptr<QStyle> style(QStyleFactory::create(named.isEmpty() ? "fusion" : named));
    return style ? style->name() : QString();
}

// Fusion, counting the times it is asked for a menu bar's overflow icon.
class CountingStyle : public QProxyStyle {
public:
    CountingStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))) {}
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        if (icon == SP_ToolBarHorizontalExtensionButton) {
            ++asked;
        }
        return QProxyStyle::standardIcon(icon, option, widget);
    }
    mutable int asked = 0;
};

QToolButton* overflowButton(QMenuBar& bar) {
    return bar.findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
}

QImage pixelsOf(const QIcon& icon) {
    return icon.pixmap(QSize(16, 16)).toImage().convertToFormat(QImage::Format_ARGB32);
}

TEST(ApplicationStyle, WrapsTheStyleQtPickedOnce) {
    const QString picked = QApplication::style()->name();
    EXPECT_EQ(picked, expectedStyleName());
    ApplicationStyle::install();
    auto* style = qobject_cast<ApplicationStyle*>(QApplication::style());
    ASSERT_NE(style, nullptr);
    ASSERT_NE(style->baseStyle(), nullptr);
    EXPECT_EQ(style->baseStyle()->name(), picked);
    ApplicationStyle::install();
    EXPECT_EQ(QApplication::style(), style);
    EXPECT_EQ(qobject_cast<ApplicationStyle*>(style->baseStyle()), nullptr);
}

TEST(ApplicationStyle, MenuOverflowIconIsMadeOnlyWhenTheButtonShows) {
    {
        // What this spares: under the picked style itself, a menu bar asks when it is built.
        auto* bare = new CountingStyle;
        QApplication::setStyle(bare);
        const QMenuBar built;
        EXPECT_GE(bare->asked, 1);
    }
    auto* counting = new CountingStyle;
    QPointer<CountingStyle> base(counting);
    QApplication::setStyle(new ApplicationStyle(counting));

    QMainWindow window;
    QMenuBar* bar = window.menuBar();
    for (const char* title : {"File", "Edit", "View", "Tools", "Window", "Options", "Help"}) {
        bar->addMenu(QString::fromLatin1(title));
    }
    window.setCentralWidget(new QWidget);
    window.resize(800, 300);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QToolButton* button = overflowButton(*bar);
    ASSERT_NE(button, nullptr);
    (void)window.grab();
    EXPECT_FALSE(button->isVisible());
    EXPECT_EQ(base->asked, 0) << "the icon was made while the menus fit";

    // So narrow that the menus overflow: the button shows, with the style's own icon.
    window.resize(90, 300);
    for (int i = 0; i < 50 && !button->isVisible(); ++i) {
        QTest::qWait(10);
    }
    ASSERT_TRUE(button->isVisible());
    (void)window.grab();
    EXPECT_GE(base->asked, 1);
    const QImage shown = pixelsOf(button->icon());
    EXPECT_FALSE(button->icon().isNull());
    std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    const QImage own =
        pixelsOf(fusion->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, bar));
    ASSERT_FALSE(own.isNull());
    EXPECT_EQ(shown, own);
    bool anyInk = false;
    for (int y = 0; y < shown.height() && !anyInk; ++y) {
        for (int x = 0; x < shown.width() && !anyInk; ++x) {
            anyInk = qAlpha(shown.pixel(x, y)) != 0;
        }
    }
    EXPECT_TRUE(anyInk);
}

TEST(ApplicationStyle, OtherIconsComeFromThePickedStyleAtOnce) {
    auto* style = new ApplicationStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication::setStyle(style);
    std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    EXPECT_EQ(pixelsOf(style->standardIcon(QStyle::SP_DialogOkButton)),
              pixelsOf(fusion->standardIcon(QStyle::SP_DialogOkButton)));
    EXPECT_EQ(pixelsOf(style->standardIcon(QStyle::SP_ToolBarVerticalExtensionButton)),
              pixelsOf(fusion->standardIcon(QStyle::SP_ToolBarVerticalExtensionButton)));
}

QImage premultiplied(const QImage& image) {
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

TEST(StyleImages, FusionFindsItsGroupBoxFrameReadyWithItsOwnPixels) {
    const QString file = groupBoxFramePath();
    const QString key = filePixmapCacheKey(file);
    std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    QPixmapCache::clear();
    prepareStyleImages(*fusion);
    QPixmap ready;
    ASSERT_TRUE(QPixmapCache::find(key, &ready));
    // What Fusion does when it paints a group box: QPixmap finds the pixels ready, no file read.
    const QPixmap loaded(file);
    EXPECT_EQ(loaded.cacheKey(), ready.cacheKey());
    // The pixels are those Qt's file decodes to.
    const QImage decoded(file);
    ASSERT_FALSE(decoded.isNull());
    EXPECT_EQ(premultiplied(ready.toImage()), premultiplied(decoded));

    // Without them, QPixmap reads the file, and keeps a pixmap of its own.
    QPixmapCache::clear();
    const QPixmap read(file);
    EXPECT_NE(read.cacheKey(), ready.cacheKey());
    EXPECT_EQ(premultiplied(read.toImage()), premultiplied(decoded));
}

TEST(StyleImages, OtherStylesGetNothing) {
    std::unique_ptr<QStyle> windows(QStyleFactory::create(QStringLiteral("windows")));
    ASSERT_NE(windows, nullptr);
    QPixmapCache::clear();
    prepareStyleImages(*windows);
    QPixmap ready;
    EXPECT_FALSE(QPixmapCache::find(filePixmapCacheKey(groupBoxFramePath()), &ready));
}

} // namespace
} // namespace tarnic::test
