// Words cut through half the height of their letters, at each size of the window.
#include "exercises/memory/frmTronqué.h"
#include "tests/desktop/Atelier.h"

#include <QImage>

#include <algorithm>
#include <iterator>

namespace tirelune {

namespace {

const std::initializer_list<QSize> TaillesDeFenêtre{{800, 600}, {1024, 768}, {1366, 768}, {1920, 1080}, {3840, 2160}};
constexpr int Coin = 12; // pixels at either end where the ground shows round the corners

class Tronqués : public Atelier {
protected:
    frmExercices choix{application};
    frmTronqué écran{choix};

    void Jouer(std::vector<Texte> mots, const std::function<void()>& script)
    {
        choix.cmbVocabulaire.AddItems(std::move(mots));
        Avec(écran, [&] {
            for (const auto& taille : TaillesDeFenêtre) {
                SCOPED_TRACE(taille.width());
                Devant().setGeometry({QPoint{0, 0}, taille});
                Mettre();
                QCoreApplication::sendPostedEvents();
                Mettre();
                script();
            }
        });
    }
    QRect PlaceDe(const Elément& élément)
    {
        auto& widget = Widget(élément);
        return {widget.mapTo(&Devant(), QPoint{0, 0}), widget.size()};
    }
};

// The rows that hold ink.
std::pair<int, int> RangéesEncrées(const QImage& image)
{
    int première = image.height();
    int dernière = -1;
    for (int y = 6; y < image.height() - 6; ++y) {
        for (int x = Coin; x < image.width() - Coin; ++x) {
            if (qGray(image.pixel(x, y)) < 128) {
                première = std::min(première, y);
                dernière = std::max(dernière, y);
            }
        }
    }
    return {première, dernière};
}

// The ink of some rows of a label, each point counted from the first column that holds any, and from half the height.
std::vector<std::pair<int, int>> Lettres(const QImage& image, int haut, int bas)
{
    std::vector<std::pair<int, int>> points;
    int gauche = image.width();
    for (int x = Coin; x < image.width() - Coin; ++x) {
        for (int y = std::max(haut, 4); y < std::min(bas, image.height() - 6); ++y) {
            if (qGray(image.pixel(x, y)) < 128) {
                gauche = std::min(gauche, x);
                points.emplace_back(x - gauche, y - image.height() / 2);
            }
        }
    }
    return points;
}

// Large letters are outlines: what lies between two points may fall to either.
bool Pareilles(const std::vector<std::pair<int, int>>& unes, const std::vector<std::pair<int, int>>& autres)
{
    std::vector<std::pair<int, int>> écarts;
    std::set_symmetric_difference(unes.begin(), unes.end(), autres.begin(), autres.end(), std::back_inserter(écarts));
    return écarts.size() <= unes.size() / 20;
}

} // namespace

TEST_F(Tronqués, LeCacheCouvreExactementLaMoitiéDuMot)
{
    Jouer({u"âne", u"jardin", u"Zoé", u"wagon", u"nous", u"feuille", u"physique"}, [&] {
        for (int i = 0; i < 7; ++i) {
            const auto gauche = PlaceDe(écran.lblMot1(i));
            const auto haut = PlaceDe(écran.cache1(i));
            const auto droite = PlaceDe(écran.lblMot2(i));
            const auto bas = PlaceDe(écran.cache2(i));
            EXPECT_EQ(haut, QRect(gauche.topLeft(), QSize(gauche.width(), gauche.height() / 2)));
            EXPECT_EQ(bas.topLeft(), droite.topLeft() + QPoint(0, droite.height() / 2));
            EXPECT_EQ(bas.bottomRight(), droite.bottomRight());
            EXPECT_NEAR(gauche.height(), droite.height(), 1);
        }
    });
}

TEST_F(Tronqués, LaCoupeTombeAMiHauteurDesLettres)
{
    Jouer({u"bdfhklgjpqy", u"dbgjpq", u"klgyp", u"hbjpg", u"fdlgqj"}, [&] {
        for (int i = 0; i < 5; ++i) {
            const auto image = Widget(écran.lblMot1(i)).grab().toImage();
            const auto [première, dernière] = RangéesEncrées(image);
            const int moitié = image.height() / 2;
            EXPECT_NEAR(moitié - première, dernière + 1 - moitié, 0.12 * (dernière - première)) << i;
            EXPECT_GT(dernière - première, 14);
        }
    });
}

TEST_F(Tronqués, LesDeuxMoitiésDUnMotSAssemblent)
{
    Jouer({u"âne", u"jardin", u"Zoé", u"wagon", u"physique"}, [&] {
        const auto page = Devant().grab().toImage();
        for (int i = 0; i < 5; ++i) {
            int j = 0;
            while (écran.lblMot2(j).Caption != écran.lblMot1(i).Caption)
                ++j;
            const auto gauche = Widget(écran.lblMot1(i)).grab().toImage();
            const auto droite = Widget(écran.lblMot2(j)).grab().toImage();
            const auto lettres = Lettres(gauche, 0, gauche.height());
            EXPECT_TRUE(Pareilles(lettres, Lettres(droite, 0, droite.height()))) << "coupées à la même hauteur";
            const auto basses = Lettres(page.copy(PlaceDe(écran.lblMot1(i))), gauche.height() / 2, gauche.height());
            const auto hautes = Lettres(page.copy(PlaceDe(écran.lblMot2(j))), 0, droite.height() / 2);
            EXPECT_GT(basses.size(), 10U);
            EXPECT_GT(hautes.size(), 10U);
            EXPECT_TRUE(Pareilles(basses, Lettres(gauche, gauche.height() / 2, gauche.height())));
            EXPECT_TRUE(Pareilles(hautes, Lettres(droite, 0, droite.height() / 2)));
            EXPECT_TRUE(Lettres(page.copy(PlaceDe(écran.lblMot1(i))), 0, gauche.height() / 2).empty()) << "caché";
            EXPECT_TRUE(Lettres(page.copy(PlaceDe(écran.lblMot2(j))), droite.height() / 2, droite.height()).empty());
        }
    });
}

TEST_F(Tronqués, NonVientADroiteDuMotFaux)
{
    Jouer({u"âne", u"jardin", u"Zoé", u"wagon", u"physique"}, [&] {
        Cliquer(écran.lblMot1(0));
        Mettre();
        const int faux = écran.lblMot2(0).Caption == écran.lblMot1(0).Caption ? 1 : 0;
        Cliquer(écran.lblMot2(faux));
        Mettre();
        const auto non = PlaceDe(écran.lblNon);
        const auto mot = PlaceDe(écran.lblMot2(faux));
        EXPECT_TRUE(écran.lblNon.Visible);
        EXPECT_EQ(non.top(), mot.top());
        EXPECT_EQ(non.left(), mot.right() + 1 + Devant().Pixels(100));
        EXPECT_TRUE(Devant().rect().contains(non));
    });
}

TEST_F(Tronqués, UneLongueExpressionResteSurUneLigne)
{
    const Texte longue = u"le petit chat de la voisine dort tout le jour au soleil sur le grand mur de pier";
    Jouer({longue, u"jardin", u"Zoé", u"wagon", u"physique"}, [&] {
        for (int i = 0; i < 5; ++i) {
            const auto image = Widget(écran.lblMot1(i)).grab().toImage();
            const auto [première, dernière] = RangéesEncrées(image);
            const int moitié = image.height() / 2;
            EXPECT_LT(première, moitié);
            EXPECT_GT(dernière, moitié);
        }
    });
}

} // namespace tirelune
