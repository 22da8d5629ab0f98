#include "desktop/Impression.h"

#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tirelune {

namespace {

class SurPapier : public testing::Test {
protected:
    QTemporaryDir dossier;

    QByteArray Imprimer(const TexteRiche& texte) const
    {
        const auto fichier = dossier.filePath(QStringLiteral("page.pdf"));
        {
            Impression impression{false, nullptr};
            auto& imprimante = *dynamic_cast<QPrintDialog&>(impression.Dialogue()).printer();
            imprimante.setOutputFormat(QPrinter::PdfFormat);
            imprimante.setOutputFileName(fichier);
            impression.Imprimer(texte);
        }
        QFile pdf{fichier};
        EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
        return pdf.readAll();
    }
    static qsizetype Pages(const QByteArray& pdf) { return pdf.count("/Type /Page\n"); }
};

} // namespace

// A sheet with letters on it carries their font along.
TEST_F(SurPapier, UnePageNeCompteQueSonTexte)
{
    const auto vide = Imprimer(TexteRiche{});
    EXPECT_EQ(Pages(vide), 1);
    EXPECT_EQ(vide.count("/FontDescriptor"), 0) << "un numéro de page";
    EXPECT_GT(Imprimer(TexteRiche{u"Le chat"}).count("/FontDescriptor"), 0);
}

TEST_F(SurPapier, UnTexteLongPrendPlusieursPages)
{
    Texte lignes;
    for (int i = 0; i < 60; ++i)
        lignes += u"Le chat dort.\r\n";
    EXPECT_EQ(Pages(Imprimer(TexteRiche{lignes})), 2);
    EXPECT_EQ(Pages(Imprimer(TexteRiche{lignes + lignes})), 3);
}

} // namespace tirelune
