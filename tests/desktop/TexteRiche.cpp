#include "tests/desktop/Atelier.h"

#include "desktop/VueTexteRiche.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

namespace tirelune {

namespace {

struct EcranTexte final : EcranEssai {
    using EcranEssai::EcranEssai;
    RichTextBox rtf{*this, "rtf"};
    Arrangement Disposer() override { return Colonne{rtf}; }
};

class TexteRicheAffiché : public Atelier {
protected:
    EcranTexte écran{application};

    VueTexteRiche& VueRtf() { return dynamic_cast<VueTexteRiche&>(*Devant().VueDe(écran.rtf)); }
    QTextEdit& Zone() { return VueRtf().Zone(); }
    Texte Montré()
    {
        Mettre();
        return DepuisQString(Zone().document()->toPlainText());
    }
    const QTextLayout& LignesDe(const QTextBlock& bloc)
    {
        Zone().document()->documentLayout()->blockBoundingRect(bloc);
        return *bloc.layout();
    }
    // Where the text ends once every paragraph has its lines; nothing before that.
    bool ToutEstPosé()
    {
        for (auto bloc = Zone().document()->firstBlock(); bloc.isValid(); bloc = bloc.next()) {
            if (bloc.layout()->lineCount() == 0)
                return false;
        }
        return true;
    }
    // The middle of the left or right half of a character.
    QPoint Moitié(int position, bool droite)
    {
        QTextCursor ici{Zone().document()};
        ici.setPosition(position);
        const auto gauche = Zone().cursorRect(ici);
        ici.setPosition(position + 1);
        const auto suite = Zone().cursorRect(ici);
        const int largeur = suite.x() - gauche.x();
        return {gauche.x() + (droite ? largeur * 3 / 4 : largeur / 4), gauche.center().y()};
    }
    void Taper(const char* texte)
    {
        for (const char* c = texte; *c != '\0'; ++c) {
            *c == '\n' ? QTest::keyClick(&Zone(), Qt::Key_Return) : QTest::keyClick(&Zone(), *c);
            Mettre();
        }
    }
    void Marquer(Texte texte, std::size_t début, std::size_t longueur)
    {
        TexteRiche riche{std::move(texte)};
        riche.Formater(début, longueur, [](Format& format) { format.Barré = true; });
        écran.rtf.TextRTF(std::move(riche));
        Mettre();
    }
    void Coller(const QString& texte)
    {
        QApplication::clipboard()->setText(texte);
        QTest::keyClick(&Zone(), Qt::Key_V, Qt::ControlModifier);
        Mettre();
    }
};

// The format that a character is painted in.
QTextCharFormat FormatMontré(const QTextEdit& zone, int position)
{
    const auto bloc = zone.document()->findBlock(position);
    zone.document()->documentLayout()->blockBoundingRect(bloc); // laid out, if it wasn't
    const auto formats = bloc.layout()->formats();
    const int place = position - bloc.position();
    for (const auto& format : formats) {
        if (format.start <= place && place < format.start + format.length)
            return format.format;
    }
    ADD_FAILURE() << "sans format : " << position;
    return {};
}

// What is shown equals what is held: characters, and the format of each.
void VérifierAccord(VueTexteRiche& vue, const RichTextBox& boîte)
{
    Texte attendu;
    for (const auto c : boîte.Text()) {
        if (c != u'\r')
            attendu += c == Masque ? GlypheMasque : c;
    }
    ASSERT_EQ(DepuisQString(vue.Zone().document()->toPlainText()), attendu);
    for (std::size_t i = 0; i < boîte.Longueur(); ++i) {
        if (boîte.Text()[i] == u'\r' || boîte.Text()[i] == u'\n')
            continue;
        const auto qt = FormatMontré(vue.Zone(), vue.EnWidget(i));
        const auto& format = boîte.TextRTF().FormatEn(i);
        ASSERT_EQ(qt.fontWeight() == QFont::Bold, format.Gras) << i;
        ASSERT_EQ(qt.fontStrikeOut(), format.Barré) << i;
        ASSERT_EQ(qt.fontUnderline(), format.Souligné) << i;
        ASSERT_EQ(qt.fontItalic(), format.Italique) << i;
    }
}

} // namespace

TEST_F(TexteRicheAffiché, LesPositionsSeCorrespondentAuxFinsDeLigne)
{
    écran.rtf.Text(u"un\r\n\r\ndeux\r\n");
    Avec(écran, [&] {
        EXPECT_EQ(Montré(), u"un\n\ndeux\n");
        const std::vector<std::pair<std::size_t, int>> paires{{0, 0}, {2, 2}, {4, 3}, {6, 4}, {9, 7}, {10, 8}, {12, 9}};
        for (const auto& [élément, widget] : paires) {
            EXPECT_EQ(VueRtf().EnWidget(élément), widget);
            EXPECT_EQ(VueRtf().DepuisWidget(widget), élément);
        }
        EXPECT_EQ(VueRtf().EnWidget(3), 2); // between CR and LF
        EXPECT_EQ(VueRtf().EnWidget(5), 3);
    });
}

TEST_F(TexteRicheAffiché, LesDeuxMoitiésDUnCaractèreLeDonnent)
{
    écran.rtf.Text(u"bonjour\r\nla lune");
    écran.rtf.Locked = true;
    std::vector<std::size_t> clics;
    écran.rtf.Click = [&] { clics.push_back(écran.rtf.SelStart()); };
    Avec(écran, [&] {
        for (const int position : {0, 3, 9}) {
            for (const bool droite : {false, true})
                QTest::mouseClick(Zone().viewport(), Qt::LeftButton, {}, Moitié(position, droite));
        }
        EXPECT_EQ(clics, (std::vector<std::size_t>{0, 0, 3, 3, 10, 10}));
        clics.clear();
        QTest::mouseClick(Zone().viewport(), Qt::LeftButton, {}, Moitié(2, false) + QPoint{400, 0});
        EXPECT_EQ(clics, (std::vector<std::size_t>{7})); // right of the line: its end
        QTest::keyClicks(&Zone(), "x");
        EXPECT_EQ(écran.rtf.Text(), u"bonjour\r\nla lune");
    });
}

TEST_F(TexteRicheAffiché, ADroiteDUneLigneCoupéeCEstSonDernierBlanc)
{
    Texte texte;
    for (int i = 0; i < 60; ++i)
        texte += u"lune ";
    écran.rtf.Text(texte);
    écran.rtf.Locked = true;
    Avec(écran, [&] {
        const auto ligne = Zone().document()->firstBlock().layout()->lineAt(0);
        ASSERT_GT(Zone().document()->firstBlock().layout()->lineCount(), 1);
        QTest::mouseClick(Zone().viewport(), Qt::LeftButton, {}, QPoint{Zone().viewport()->width() - 2, 12});
        EXPECT_EQ(écran.rtf.SelStart(), static_cast<std::size_t>(ligne.textLength() - 1));
    });
}

TEST_F(TexteRicheAffiché, UnDoubleClicFaitUnSeulClic)
{
    écran.rtf.Text(u"bonjour");
    écran.rtf.Locked = true;
    std::string suite;
    écran.rtf.Click = [&] { suite += 'c'; };
    écran.rtf.DblClick = [&] { suite += 'd'; };
    Avec(écran, [&] {
        DoubleCliquer(*Zone().viewport(), Moitié(2, true));
        EXPECT_EQ(suite, "cd");
        EXPECT_EQ(écran.rtf.SelStart(), 2U);
        EXPECT_EQ(écran.rtf.SelLength(), 1U);
    });
}

TEST_F(TexteRicheAffiché, LeClavierJoueCommeLaSouris)
{
    écran.rtf.Text(u"bon");
    écran.rtf.Locked = true;
    std::vector<std::size_t> clics;
    écran.rtf.Click = [&] { clics.push_back(écran.rtf.SelStart()); };
    bool avalées = false;
    écran.rtf.KeyPress = [&](Touche& touche) {
        if (avalées)
            touche.Avaler();
    };
    Avec(écran, [&] {
        Zone().setFocus();
        QTest::keyClick(&Zone(), Qt::Key_Right);
        QTest::keyClick(&Zone(), Qt::Key_Space);
        QTest::keyClick(&Zone(), Qt::Key_End);
        QTest::keyClick(&Zone(), Qt::Key_Left);
        QTest::keyClick(&Zone(), Qt::Key_Return);
        EXPECT_EQ(clics, (std::vector<std::size_t>{1, 2}));
        avalées = true; // a screen may keep these keys for itself
        QTest::keyClick(&Zone(), Qt::Key_Return);
        QTest::keyClick(&Zone(), Qt::Key_Space);
        QTest::keyClick(&Zone(), Qt::Key_Home);
        EXPECT_EQ(clics.size(), 2U);
        avalées = false;
        QTest::keyClick(&Zone(), Qt::Key_Return);
        EXPECT_EQ(clics, (std::vector<std::size_t>{1, 2, 2}));
    });
}

TEST_F(TexteRicheAffiché, CeQuiEstTapéEstDansLÉlément)
{
    int changements = 0;
    écran.rtf.Change = [&] { ++changements; };
    Avec(écran, [&] {
        Zone().setFocus();
        Taper("un\ndeux");
        EXPECT_EQ(écran.rtf.Text(), u"un\r\ndeux");
        EXPECT_EQ(écran.rtf.SelStart(), 8U);
        EXPECT_EQ(changements, 7);
        QTest::keyClick(&Zone(), Qt::Key_Backspace);
        QTest::keyClick(&Zone(), Qt::Key_Home);
        QTest::keyClick(&Zone(), Qt::Key_Backspace); // joins the lines
        EXPECT_EQ(écran.rtf.Text(), u"undeu");
        QTest::keyClick(&Zone(), Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(écran.rtf.SelLength(), 5U);
        QTest::keyClick(&Zone(), Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(écran.rtf.Text(), u"");
        EXPECT_EQ(Montré(), u"");
    });
}

TEST_F(TexteRicheAffiché, UneSélectionRemplacéePrendLeFormatDeSonDébut)
{
    écran.rtf.Text(u"abcdef");
    écran.rtf.Sélectionner(1, 2);
    écran.rtf.SelBold = true;
    écran.rtf.Sélectionner(1, 4);
    Avec(écran, [&] {
        Zone().setFocus();
        Taper("x");
        EXPECT_EQ(écran.rtf.Text(), u"axf");
        EXPECT_TRUE(écran.rtf.TextRTF().FormatEn(1).Gras);
        EXPECT_FALSE(écran.rtf.TextRTF().FormatEn(2).Gras);
        VérifierAccord(VueRtf(), écran.rtf);
    });
}

TEST_F(TexteRicheAffiché, LeFormatChoisiAuCurseurVaAuTexteTapé)
{
    écran.rtf.Text(u"ab");
    Avec(écran, [&] {
        écran.rtf.Sélectionner(1, 0);
        écran.rtf.SelBold = true;
        Mettre();
        Zone().setFocus();
        Taper("xy");
        EXPECT_EQ(écran.rtf.Text(), u"axyb");
        EXPECT_FALSE(écran.rtf.TextRTF().FormatEn(0).Gras);
        EXPECT_TRUE(écran.rtf.TextRTF().FormatEn(1).Gras);
        EXPECT_TRUE(écran.rtf.TextRTF().FormatEn(2).Gras);
        EXPECT_FALSE(écran.rtf.TextRTF().FormatEn(3).Gras);
        VérifierAccord(VueRtf(), écran.rtf);
    });
}

TEST_F(TexteRicheAffiché, CeQuiSuitUnMotMarquéNeLEstPas)
{
    Avec(écran, [&] {
        Zone().setFocus();
        for (const char* frappe : {"s", " ", ".", "\n", " puis", "\nfin"}) {
            Marquer(u"le chat", 3, 4);
            écran.rtf.SelStart(7);
            Mettre();
            Taper(frappe);
            EXPECT_EQ(MotsMarqués(écran.rtf.TextRTF()), std::vector<Texte>{u"chat"}) << frappe;
            VérifierAccord(VueRtf(), écran.rtf);
        }
    });
}

TEST_F(TexteRicheAffiché, EnDébutDeLigneNonPlus)
{
    Avec(écran, [&] {
        Zone().setFocus();
        Marquer(u"un\r\nchat noir", 4, 4);
        QTest::keyClick(&Zone(), Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(&Zone(), Qt::Key_Down);
        Taper("le ");
        EXPECT_EQ(MotsMarqués(écran.rtf.TextRTF()), std::vector<Texte>{u"chat"});
        Marquer(u"chat", 0, 4);
        écran.rtf.SelStart(0);
        Mettre();
        Taper("le ");
        EXPECT_EQ(MotsMarqués(écran.rtf.TextRTF()), std::vector<Texte>{u"chat"});
    });
}

TEST_F(TexteRicheAffiché, DansUnMotMarquéCeQuiEstTapéLEstAussi)
{
    Avec(écran, [&] {
        Zone().setFocus();
        Marquer(u"le chat dort", 3, 4);
        écran.rtf.SelStart(5);
        Mettre();
        Taper("xy");
        EXPECT_EQ(MotsMarqués(écran.rtf.TextRTF()), std::vector<Texte>{u"chxyat"});
        écran.rtf.Sélectionner(5, 2);
        Mettre();
        Taper("a");
        EXPECT_EQ(MotsMarqués(écran.rtf.TextRTF()), std::vector<Texte>{u"chaat"});
        Taper("\n");
        EXPECT_EQ(MotsMarqués(écran.rtf.TextRTF()), (std::vector<Texte>{u"cha", u"at"})) << "deux lignes, deux mots";
    });
}

TEST_F(TexteRicheAffiché, UnMotMarquéRemplacéPerdSaMarque)
{
    Avec(écran, [&] {
        Zone().setFocus();
        Marquer(u"le chat dort", 3, 4);
        écran.rtf.Sélectionner(3, 4);
        Mettre();
        Taper("chien");
        EXPECT_EQ(écran.rtf.Text(), u"le chien dort");
        EXPECT_TRUE(MotsMarqués(écran.rtf.TextRTF()).empty());
        Marquer(u"chat", 0, 4);
        QTest::keyClick(&Zone(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&Zone(), Qt::Key_Delete);
        Taper("un");
        EXPECT_TRUE(MotsMarqués(écran.rtf.TextRTF()).empty());
    });
}

TEST_F(TexteRicheAffiché, UnFormatChoisiDerrièreUnMotMarquéNeLAllongePas)
{
    Avec(écran, [&] {
        Zone().setFocus();
        Marquer(u"chat", 0, 4);
        écran.rtf.SelStart(4);
        écran.rtf.SelBold = true;
        Mettre();
        Taper("ut");
        EXPECT_EQ(MotsMarqués(écran.rtf.TextRTF()), std::vector<Texte>{u"chat"});
        EXPECT_TRUE(écran.rtf.TextRTF().FormatEn(5).Gras);
    });
}

TEST_F(TexteRicheAffiché, CollerDonneDuTexteSimple)
{
    écran.rtf.Text(u"[]");
    Avec(écran, [&] {
        Zone().setFocus();
        écran.rtf.Sélectionner(1, 0);
        Mettre();
        Coller(QStringLiteral("l\u2019été\u202F!\nfin"));
        EXPECT_EQ(écran.rtf.Text(), u"[l'été !\r\nfin]");
        VérifierAccord(VueRtf(), écran.rtf);
    });
}

TEST_F(TexteRicheAffiché, CollerSuitLaMêmeRèglePartout)
{
    Avec(écran, [&] {
        Zone().setFocus();
        const auto collé = QStringLiteral("a\u000Bb\u0001c\u2028d\re\tf") + QChar{GlypheMasque};
        Coller(collé);
        EXPECT_EQ(écran.rtf.Text(), u"a\r\nbc\r\nd\r\ne\tf");
        EXPECT_EQ(Montré(), u"a\nbc\nd\ne\tf");
    });
}

// What is far off is laid out little by little, and nothing in sight moves for it.
TEST_F(TexteRicheAffiché, UnTexteLongSeMetEnPageSansBouger)
{
    Texte texte;
    for (int i = 0; i < 3000; ++i)
        texte += Texte(static_cast<std::size_t>(i % 7) * 40, u'a') + u" fin\r\n";
    écran.rtf.Text(texte + u"fin");
    Avec(écran, [&] {
        Zone().setFocus();
        QTest::keyClick(&Zone(), Qt::Key_End, Qt::ControlModifier);
        Mettre();
        const auto curseur = Zone().cursorRect();
        EXPECT_TRUE(Zone().viewport()->rect().contains(curseur.center()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return ToutEstPosé(); }));
        EXPECT_EQ(Zone().cursorRect().top(), curseur.top()) << "ce qui se met en page plus haut ne pousse rien";
    });
}

TEST_F(TexteRicheAffiché, CollerSeJetteCommeUneTouche)
{
    écran.rtf.Text(u"ab");
    écran.rtf.KeyPress = [](Touche& touche) { touche.Avaler(); };
    Avec(écran, [&] {
        Zone().setFocus();
        Coller(QStringLiteral("xyz"));
        Taper("q");
        EXPECT_EQ(écran.rtf.Text(), u"ab");
        EXPECT_EQ(Montré(), u"ab");
    });
}

TEST_F(TexteRicheAffiché, UnCaractèreComposéEstTapé)
{
    Avec(écran, [&] {
        Zone().setFocus();
        QInputMethodEvent composé;
        composé.setCommitString("ê");
        QCoreApplication::sendEvent(&Zone(), &composé);
        EXPECT_EQ(écran.rtf.Text(), u"ê");
    });
}

TEST_F(TexteRicheAffiché, LesChangementsDuProgrammeSeMontrent)
{
    écran.rtf.Text(u"un\r\ndeux\r\ntrois");
    Avec(écran, [&] {
        écran.rtf.Remplacer(0, 1, u"U");
        écran.rtf.Remplacer(4, 6, u"");
        écran.rtf.Sélectionner(0, 2);
        écran.rtf.SelStrikeThru = true;
        écran.rtf.Remplacer(écran.rtf.Longueur(), 0, u"\r\nquatre");
        EXPECT_EQ(Montré(), u"Un\ntrois\nquatre");
        VérifierAccord(VueRtf(), écran.rtf);
        EXPECT_EQ(Zone().textCursor().position(), VueRtf().EnWidget(écran.rtf.SelStart()));
    });
}

TEST_F(TexteRicheAffiché, LeMasqueEstUneBoîteÀSaPlace)
{
    écran.rtf.Text(u"le chat");
    écran.rtf.Sélectionner(3, 4);
    écran.rtf.SelBold = true;
    écran.rtf.Locked = true;
    Avec(écran, [&] {
        for (std::size_t i = 3; i < 7; ++i)
            écran.rtf.Remplacer(i, 1, VueTexte{&Masque, 1});
        EXPECT_EQ(Montré(), u"le \u25AE\u25AE\u25AE\u25AE");
        VérifierAccord(VueRtf(), écran.rtf);
        écran.rtf.Remplacer(4, 1, u"h");
        EXPECT_EQ(Montré(), u"le \u25AEh\u25AE\u25AE");
    });
}

TEST_F(TexteRicheAffiché, LaSélectionDuProgrammeSeVoit)
{
    écran.rtf.Text(u"un\r\ndeux");
    écran.rtf.Locked = true;
    Avec(écran, [&] {
        écran.rtf.Sélectionner(4, 3);
        Mettre();
        EXPECT_EQ(Zone().textCursor().selectedText(), "deu");
    });
}

TEST_F(TexteRicheAffiché, LaSélectionDeLUtilisateurVaÀLÉlément)
{
    écran.rtf.Text(u"un\r\ndeux");
    int fois = 0;
    écran.rtf.SelChange = [&] { ++fois; };
    Avec(écran, [&] {
        Zone().setFocus();
        QTest::keyClick(&Zone(), Qt::Key_End);
        QTest::keyClick(&Zone(), Qt::Key_Right);
        EXPECT_EQ(écran.rtf.SelStart(), 4U);
        QTest::keyClick(&Zone(), Qt::Key_End, Qt::ShiftModifier);
        EXPECT_EQ(écran.rtf.SelStart(), 4U);
        EXPECT_EQ(écran.rtf.SelLength(), 4U);
        EXPECT_EQ(fois, 3);
    });
}

TEST_F(TexteRicheAffiché, LesParagraphesSuiventLeurFormat)
{
    écran.rtf.Text(u"un\r\ndeux");
    Avec(écran, [&] {
        écran.rtf.Sélectionner(5, 0);
        écran.rtf.SelAlignment = Cadrage::Centre;
        écran.rtf.SelIndent = 300;
        Mettre();
        const auto& premier = LignesDe(Zone().document()->firstBlock());
        const auto& second = LignesDe(Zone().document()->lastBlock());
        EXPECT_EQ(premier.textOption().alignment(), Qt::AlignLeft);
        EXPECT_EQ(second.textOption().alignment(), Qt::AlignHCenter);
        EXPECT_EQ(premier.lineAt(0).x(), 0);
        EXPECT_EQ(second.lineAt(0).x(), Devant().Echelle() * 20);
        const auto cadre = Zone().document()->documentLayout()->blockBoundingRect(Zone().document()->lastBlock());
        EXPECT_GT(second.lineAt(0).naturalTextRect().left(), cadre.width() / 3);
    });
}

TEST_F(TexteRicheAffiché, LeNomDUnePoliceAbsenteResteDansLeTexte)
{
    Avec(écran, [&] {
        Zone().setFocus();
        écran.rtf.SelFontName = u"Police Inconnue";
        Taper("a");
        EXPECT_EQ(écran.rtf.TextRTF().FormatEn(0).Police, u"Police Inconnue");
    });
}

// Whatever the program and the user do in turn, one text is shown and held.
TEST_F(TexteRicheAffiché, ToutesLesRetouchesGardentLAccord)
{
    écran.rtf.Text(u"Il était une fois\r\nune lune\r\n\r\ntrès ronde.");
    Avec(écran, [&] {
        Zone().setFocus();
        std::mt19937 dés{3};
        const std::vector<Texte> morceaux{u"", u"x", u"\r\n", u"ab\r\ncd", Texte{Masque}, u"été"};
        for (int i = 0; i < 400; ++i) {
            auto début = dés() % (écran.rtf.Longueur() + 1);
            if (début > 0 && écran.rtf.Text()[début - 1] == u'\r')
                ++début; // a line end is edited as a whole
            auto fin = std::min(début + dés() % 5, écran.rtf.Longueur());
            if (fin > 0 && fin < écran.rtf.Longueur() && écran.rtf.Text()[fin - 1] == u'\r')
                ++fin;
            switch (dés() % 4) {
            case 0:
                écran.rtf.Remplacer(début, fin - début, morceaux[dés() % morceaux.size()]);
                break;
            case 1:
                écran.rtf.Sélectionner(début, fin - début);
                écran.rtf.SelBold = dés() % 2 == 0;
                break;
            case 2:
                écran.rtf.Sélectionner(début, fin - début);
                Mettre();
                QTest::keyClick(&Zone(), dés() % 2 == 0 ? Qt::Key_Delete : Qt::Key_Return);
                break;
            default:
                écran.rtf.Sélectionner(début, fin - début);
                Mettre();
                QTest::keyClick(&Zone(), 'k');
                break;
            }
            if (dés() % 3 == 0) {
                Mettre();
                VérifierAccord(VueRtf(), écran.rtf);
                if (HasFatalFailure())
                    return;
            }
        }
        Mettre();
        VérifierAccord(VueRtf(), écran.rtf);
    });
}

// Thousands of edits make one change of the picture, and leave alone what they don't touch.
TEST_F(TexteRicheAffiché, DesMilliersDeRetouchesSeMontrentEnsemble)
{
    Texte texte;
    for (int i = 0; i < 100; ++i)
        texte += Texte(200, u'a') + u"\r\n";
    écran.rtf.Text(texte);
    écran.rtf.Locked = true;
    Avec(écran, [&] {
        int passes = 0;
        QObject::connect(Zone().document(), &QTextDocument::contentsChange, &Zone(), [&] { ++passes; });
        for (std::size_t i = 0; i < 5000; ++i) {
            if (texte[i] == u'a')
                écran.rtf.Remplacer(i, 1, VueTexte{&Masque, 1});
        }
        EXPECT_EQ(passes, 0);
        Mettre();
        EXPECT_LE(passes, 30); // once for each paragraph
        VérifierAccord(VueRtf(), écran.rtf);
    });
}

} // namespace tirelune
