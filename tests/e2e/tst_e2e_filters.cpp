// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

using namespace Qt::StringLiterals;

/// The gallery of picture filters, and what they do on the screen.
class tst_E2eFilters final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void theStripFiltersThePicture();
    void thePopupFiltersThePicture();
    void aTypedNameFindsAFilterInThePopup();
    void theSearchFieldOffersFilters();
    void aStarMakesAFavourite();

private:
    void openPicture();
    void openPopup() const;
    /// The two halves of the test's picture.
    QPoint top() const { return m_middle - QPoint(0, 20); }
    QPoint bottom() const { return m_middle + QPoint(0, 20); }

    QPoint m_middle; ///< of the picture on the screen
};

void tst_E2eFilters::openPicture()
{
    scene()->start({u"folder/picture.png"_s});
    workbench()->waitFor(u"ribbon page"_s, u"pictureTools"_s);
    m_middle = workbench()->place(u"widget picture"_s).center();
    scene()->waitForColor(top(), PictureTop);
    scene()->waitForColor(bottom(), PictureBottom);
}

void tst_E2eFilters::openPopup() const
{
    scene()->click(u"widget popupButton"_s);
    workbench()->place(u"widget galleryPopupMenu"_s);
}

void tst_E2eFilters::theStripFiltersThePicture()
{
    openPicture();
    scene()->click(u"action filter_invert"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png*"_s);
    scene()->waitForColor(top(), QColor(15, 115, 235));
    scene()->waitForColor(bottom(), QColor(235, 215, 135));
    person()->press(u"ctrl+z"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png"_s);
    scene()->waitForColor(top(), PictureTop);
    scene()->leave();
}

void tst_E2eFilters::thePopupFiltersThePicture()
{
    openPicture();
    // It is not in the strip.
    workbench()->waitUntilGone(u"action filter_red"_s);
    openPopup();
    scene()->click(u"action filter_red"_s);
    workbench()->waitUntilGone(u"widget galleryPopupMenu"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png*"_s);
    scene()->waitForColor(top(), QColor(240, 0, 0));
    scene()->click(u"button Home"_s);
    scene()->click(u"action undo"_s);
    scene()->waitForColor(top(), PictureTop);
    scene()->click(u"action redo"_s);
    scene()->waitForColor(top(), QColor(240, 0, 0));
    person()->press(u"ctrl+s"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png"_s);
    const QImage saved = QImage::fromData(scene()->bytesOf(u"folder/picture.png"_s));
    QCOMPARE(saved.pixelColor(100, 20), QColor(240, 0, 0));
    scene()->leave();
}

void tst_E2eFilters::aTypedNameFindsAFilterInThePopup()
{
    openPicture();
    openPopup();
    const QRect popup = workbench()->place(u"widget galleryPopupMenu"_s);
    workbench()->place(u"action filter_blue"_s);
    person()->click({popup.left() + 80, popup.top() + 16});
    // Upper and lower case differ here.
    person()->type(u"Fli"_s);
    workbench()->waitUntilGone(u"action filter_blue"_s);
    scene()->click(u"action filter_flip"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png*"_s);
    scene()->waitForColor(top(), PictureBottom);
    scene()->waitForColor(bottom(), PictureTop);
    person()->press(u"ctrl+z"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png"_s);
    scene()->leave();
}

void tst_E2eFilters::theSearchFieldOffersFilters()
{
    openPicture();
    // Qt 6.8 takes the first click of a pointer that it has never seen for a mere closing of the menu.
    person()->move(workbench()->place(u"widget picture"_s).center());
    person()->press(u"ctrl+f"_s);
    workbench()->waitFor(u"focus"_s, u"searchField"_s);
    person()->type(u"mirror"_s);
    person()->press(u"Return"_s);
    scene()->click(u"entry Mirror"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png*"_s);
    workbench()->waitFor(u"message"_s, u"Information: picture.png: Mirror"_s);
    person()->press(u"ctrl+s"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png"_s);
    scene()->leave();
}

void tst_E2eFilters::aStarMakesAFavourite()
{
    openPicture();
    const QRect first = workbench()->place(u"action filter_grayscale"_s);
    openPopup();
    const QRect tile = workbench()->place(u"action filter_blue"_s);
    person()->move(tile.center());
    person()->click(tile.topLeft() + QPoint(9, 9));
    workbench()->waitFor(u"favourites"_s, u"blue"_s);
    // Above all others in the popup, and nothing has happened to the picture.
    const QRect favourite = workbench()->place(u"action filter_blue"_s);
    QVERIFY(favourite.top() < workbench()->place(u"action filter_green"_s).top());
    workbench()->waitFor(u"tabs 1"_s, u"picture.png"_s);
    person()->press(u"Escape"_s);
    workbench()->waitUntilGone(u"widget galleryPopupMenu"_s);
    // The first one of the strip.
    QCOMPARE(workbench()->place(u"action filter_blue"_s), first);
    scene()->click(u"action filter_blue"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png*"_s);
    scene()->waitForColor(top(), QColor(0, 0, 20));
    person()->press(u"ctrl+z"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png"_s);
    scene()->leave();
    scene()->start({});
    workbench()->waitFor(u"favourites"_s, u"blue"_s);
    workbench()->waitFor(u"ribbon page"_s, u"pictureTools"_s);
    QCOMPARE(workbench()->place(u"action filter_blue"_s).left(), first.left());
    scene()->leave();
}

QTEST_GUILESS_MAIN(tst_E2eFilters)

#include "tst_e2e_filters.moc"
