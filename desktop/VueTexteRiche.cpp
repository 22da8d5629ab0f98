#include "desktop/VueTexteRiche.h"

#include "core/Collage.h"
#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/FormatsQt.h"
#include "desktop/Signes.h"
#include "desktop/Vues.h"

#include <QAbstractTextDocumentLayout>
#include <QAccessible>
#include <QAction>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace tirelune {

namespace {

constexpr double ContrasteMinimum = 3; // of large letters: WCAG 2.1

bool FinitLigne(char16_t caractère)
{
    return caractère == u'\r' || caractère == u'\n';
}

// How many characters two texts share at either end; a line end counts whole, or not at all.
struct Bords {
    std::size_t Devant = 0;
    std::size_t Derrière = 0;
};

Bords Communs(VueTexte ancien, VueTexte nouveau)
{
    Bords bords;
    const auto moindre = std::min(ancien.size(), nouveau.size());
    while (bords.Devant < moindre && ancien[bords.Devant] == nouveau[bords.Devant])
        ++bords.Devant;
    if (bords.Devant > 0 && ancien[bords.Devant - 1] == u'\r')
        --bords.Devant;
    while (bords.Derrière < moindre - bords.Devant &&
           ancien[ancien.size() - 1 - bords.Derrière] == nouveau[nouveau.size() - 1 - bords.Derrière])
        ++bords.Derrière;
    if (bords.Derrière > 0 && ancien[ancien.size() - bords.Derrière] == u'\n')
        --bords.Derrière;
    return bords;
}

} // namespace

// ---- The widget ------------------------------------------------------------------------------------------------

class VueTexteRiche::Page final : public QTextEdit {
public:
    Page(VueTexteRiche& vue, QWidget* parent) : QTextEdit(parent), vue_(vue)
    {
        static constexpr double Marge = 10;
        document()->setDocumentMargin(Marge);
        setUndoRedoEnabled(false);
        setAcceptRichText(false);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setAcceptDrops(false);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    void Verrouiller(bool verrouillée)
    {
        if (verrouillée == isReadOnly())
            return;
        setReadOnly(verrouillée);
        if (verrouillée)
            setTextInteractionFlags(Qt::NoTextInteraction);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_InputMethodEnabled);
        const auto lue = EstUneEtiquette() ? Qt::PointingHandCursor : Qt::ArrowCursor;
        viewport()->setCursor(verrouillée ? lue : Qt::IBeamCursor);
    }

    // It is clicked as a whole, and none of its characters is pointed at.
    [[nodiscard]] bool EstUneEtiquette() const
    {
        return vue_.boîte_.UneLigne && vue_.boîte_.Locked && vue_.boîte_.Click;
    }

    // What lies below the first line is out of sight.
    void MettreEnLigne()
    {
        static constexpr double Marge = 3;
        document()->setDocumentMargin(Marge);
        setLineWrapMode(NoWrap);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        // Letters may be of any size.
        QObject::connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
                         [this] { updateGeometry(); });
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return {font().pixelSize() * 24, vue_.boîte_.UneLigne ? HauteurLigne() : font().pixelSize() * 12};
    }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {font().pixelSize() * 8, vue_.boîte_.UneLigne ? HauteurLigne() : font().pixelSize() * 4};
    }

    [[nodiscard]] int Visé() const { return std::min(visé_, document()->characterCount() - 1); }
    // Assistive tools take it for the caret.
    void Viser(int position)
    {
        visé_ = std::max(0, position);
        QAccessibleTextCursorEvent ici{this, Visé()};
        QAccessible::updateAccessibility(&ici);
        viewport()->update();
    }

    void MontrerVisé()
    {
        const auto cadre = CadreVisé();
        auto* barre = verticalScrollBar();
        if (cadre.top() < 0)
            barre->setValue(barre->value() + cadre.top());
        else if (cadre.bottom() > viewport()->height())
            barre->setValue(barre->value() + cadre.bottom() - viewport()->height());
    }

    // The character under the point; right of a line, its end.
    [[nodiscard]] int CaractèreSous(QPoint lieu) const
    {
        const QPointF point = QPointF{lieu} + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
        const auto* mise = document()->documentLayout();
        const auto bloc = document()->findBlock(mise->hitTest(point, Qt::FuzzyHit));
        const auto* lignes = bloc.layout();
        const auto coin = mise->blockBoundingRect(bloc).topLeft();
        for (int i = 0; i < lignes->lineCount(); ++i) {
            const auto ligne = lignes->lineAt(i);
            const bool dernière = i + 1 == lignes->lineCount();
            if (!dernière && point.y() >= coin.y() + ligne.y() + ligne.height())
                continue;
            const int fin = bloc.position() + ligne.textStart() + ligne.textLength();
            const double x = point.x() - coin.x();
            if (x >= ligne.naturalTextRect().right())
                return dernière ? bloc.position() + bloc.length() - 1 : fin - 1;
            return bloc.position() + ligne.xToCursor(x, QTextLine::CursorOnCharacter);
        }
        return bloc.position();
    }

protected:
    bool event(QEvent* événement) override
    {
        if (événement->type() != QEvent::ShortcutOverride || !EstRaccourci(static_cast<const QKeyEvent&>(*événement)))
            return QTextEdit::event(événement);
        événement->ignore(); // the screen's own way of cutting, pasting or undoing
        return true;
    }

    void mousePressEvent(QMouseEvent* événement) override
    {
        pressée_ = événement->button() == Qt::LeftButton;
        const bool anneau = std::exchange(clavier_, false);
        if (!isReadOnly()) {
            QTextEdit::mousePressEvent(événement);
            return;
        }
        if (!pressée_)
            return;
        setFocus(Qt::MouseFocusReason);
        visé_ = CaractèreSous(événement->position().toPoint());
        if (anneau)
            viewport()->update();
    }

    void mouseMoveEvent(QMouseEvent* événement) override
    {
        if (!isReadOnly())
            QTextEdit::mouseMoveEvent(événement);
    }

    void mouseReleaseEvent(QMouseEvent* événement) override
    {
        if (!isReadOnly())
            QTextEdit::mouseReleaseEvent(événement);
        const bool dedans = !vue_.boîte_.UneLigne || viewport()->rect().contains(événement->position().toPoint());
        const bool clic = pressée_ && dedans && événement->button() == Qt::LeftButton;
        pressée_ = false;
        if (!clic || !vue_.Agissante())
            return;
        if (isReadOnly())
            vue_.boîte_.Cliquer(vue_.DepuisWidget(visé_));
        else if (!textCursor().hasSelection())
            vue_.boîte_.Cliquer(vue_.DepuisWidget(textCursor().position()));
    }

    void mouseDoubleClickEvent(QMouseEvent* événement) override
    {
        pressée_ = false; // the release to come ends this, and clicks no more
        const auto lieu = événement->position().toPoint();
        const int position = isReadOnly() ? CaractèreSous(lieu) : cursorForPosition(lieu).position();
        if (!isReadOnly())
            QTextEdit::mouseDoubleClickEvent(événement);
        if (événement->button() == Qt::LeftButton && vue_.Agissante() && vue_.boîte_.DblClick)
            vue_.boîte_.DoubleCliquer(vue_.DepuisWidget(position));
    }

    void keyPressEvent(QKeyEvent* événement) override
    {
        if (isReadOnly()) {
            Jouer(*événement);
            return;
        }
        const bool tabulation = événement->key() == Qt::Key_Tab || événement->key() == Qt::Key_Backtab;
        if (tabulation && (événement->modifiers() & Qt::ControlModifier) != 0) {
            setTabChangesFocus(true); // the way out, where Tab writes
            focusNextPrevChild(événement->key() == Qt::Key_Tab);
            setTabChangesFocus(!vue_.boîte_.Tabulations);
            return;
        }
        const bool entrée = événement->key() == Qt::Key_Return || événement->key() == Qt::Key_Enter;
        if (entrée && vue_.boîte_.UneLigne) {
            événement->ignore();
            return;
        }
        if (entrée && événement->modifiers() != Qt::NoModifier) {
            textCursor().insertBlock(); // one kind of line end only
            ensureCursorVisible();
            return;
        }
        const int avant = textCursor().position();
        QTextEdit::keyPressEvent(événement);
        if (textCursor().position() != avant)
            vue_.MontrerCurseur();
    }

    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override
    {
        auto* simple = new QMimeData;
        simple->setText(EnQString(vue_.boîte_.SelText()));
        return simple;
    }

    void insertFromMimeData(const QMimeData* source) override
    {
        auto texte = EnQString(NormaliserCollage(DepuisQString(source->text())));
        texte.remove(QChar{GlypheMasque});
        if (vue_.boîte_.UneLigne)
            texte.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
        textCursor().insertText(texte);
        ensureCursorVisible();
    }

    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override { return source->hasText(); }

    void paintEvent(QPaintEvent* événement) override
    {
        QTextEdit::paintEvent(événement);
        if (vue_.boîte_.UneLigne) {
            PeindreLeSigne();
            return;
        }
        if (!hasFocus() || !isReadOnly() || !clavier_)
            return;
        QPainter peintre{viewport()};
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.setPen(QPen{Teinte::Anneau, 2});
        peintre.drawRoundedRect(QRectF{CadreVisé()}.adjusted(-1, 0, 1, 0), 3, 3);
    }

private:
    // At the right end, as on a label.
    void PeindreLeSigne()
    {
        const auto signe = SigneDe(vue_.boîte_);
        if (signe == Signe::Aucun)
            return;
        QPainter peintre{viewport()};
        peintre.setRenderHint(QPainter::Antialiasing);
        const int marge = static_cast<int>(document()->documentMargin());
        const int côté = viewport()->height() - 2 * marge;
        const QRect bout{viewport()->width() - côté - marge, marge, côté, côté};
        PeindreSigne(peintre, signe, bout, EncreSur(palette().color(QPalette::Base), Teinte::Encre));
    }
    [[nodiscard]] bool EstRaccourci(const QKeyEvent& touche) const
    {
        if ((touche.modifiers() & Qt::ControlModifier) == 0)
            return false;
        const auto actions = window()->findChildren<QAction*>();
        return std::any_of(actions.begin(), actions.end(), [&](const QAction* une) {
            return une->isEnabled() && une->shortcut() == QKeySequence{touche.keyCombination()};
        });
    }
    [[nodiscard]] int HauteurLigne() const
    {
        const auto première = document()->documentLayout()->blockBoundingRect(document()->firstBlock());
        const double marges = 2 * (document()->documentMargin() + frameWidth());
        return static_cast<int>(std::ceil(std::max<double>(première.height(), fontMetrics().lineSpacing()) + marges));
    }
    [[nodiscard]] QRect CadreVisé() const
    {
        QTextCursor ici{document()};
        ici.setPosition(Visé());
        auto là = ici;
        const auto cadre = cursorRect(ici);
        const bool suite = !ici.atBlockEnd() && là.movePosition(QTextCursor::NextCharacter);
        const auto suivant = suite ? cursorRect(là) : cadre;
        const int largeur = suite && suivant.top() == cadre.top() ? suivant.left() - cadre.left() : cadre.height() / 2;
        return {cadre.left(), cadre.top(), std::max(4, largeur), cadre.height()};
    }

    // The keyboard's way of clicking: arrows lead to a character, Enter and the space bar click it. Where nothing
    // answers to a click, the window scrolls what is to be read.
    void Jouer(QKeyEvent& événement)
    {
        if (!vue_.boîte_.Click) {
            événement.ignore();
            return;
        }
        const bool parMots = (événement.modifiers() & Qt::ControlModifier) != 0;
        switch (événement.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (EstUneEtiquette()) {
                vue_.boîte_.Cliquer(0);
                return;
            }
            Pointer(Visé());
            if (vue_.Agissante())
                vue_.boîte_.Cliquer(vue_.DepuisWidget(Visé()));
            return;
        case Qt::Key_PageUp:
            return Feuilleter(QAbstractSlider::SliderPageStepSub);
        case Qt::Key_PageDown:
            return Feuilleter(QAbstractSlider::SliderPageStepAdd);
        case Qt::Key_Left:
            return Aller(parMots ? QTextCursor::PreviousWord : QTextCursor::PreviousCharacter);
        case Qt::Key_Right:
            return Aller(parMots ? QTextCursor::NextWord : QTextCursor::NextCharacter);
        case Qt::Key_Up:
            return Aller(QTextCursor::Up);
        case Qt::Key_Down:
            return Aller(QTextCursor::Down);
        case Qt::Key_Home:
            return Aller(QTextCursor::Start);
        case Qt::Key_End:
            return Aller(QTextCursor::End);
        default:
            événement.ignore();
        }
    }

    void Pointer(int position)
    {
        clavier_ = true;
        Viser(position);
    }

    // The character pointed at stays where it is in the window; the text moves under it.
    void Feuilleter(QAbstractSlider::SliderAction page)
    {
        const auto lieu = CadreVisé().center();
        verticalScrollBar()->triggerAction(page);
        Pointer(CaractèreSous({lieu.x(), std::clamp(lieu.y(), 0, viewport()->height() - 1)}));
    }

    void Aller(QTextCursor::MoveOperation pas)
    {
        QTextCursor ici{document()};
        ici.setPosition(Visé());
        ici.movePosition(pas);
        Pointer(ici.position());
        auto* barre = verticalScrollBar();
        if (pas == QTextCursor::Start || pas == QTextCursor::End)
            barre->setValue(pas == QTextCursor::Start ? 0 : barre->maximum());
        else
            MontrerVisé();
    }

    VueTexteRiche& vue_;
    int visé_ = 0; // the character that the mouse or the keyboard has last pointed at
    bool pressée_ = false;
    bool clavier_ = false;
};

// ---- From the element to the widget ------------------------------------------------------------------------------

VueTexteRiche::VueTexteRiche(Hôte& hôte, RichTextBox& boîte, QWidget* parent)
    : Vue(hôte, boîte, new Page{*this, parent}),
      boîte_(boîte),
      zone_(static_cast<QTextEdit&>(*widget)),
      mise_(*new MiseEnPage{zone_.document()})
{
    mise_.Habiller = [this](const QTextBlock& bloc) { return Habiller(bloc); };
    mise_.EnAccord = [this] { return retouches_.Vides() && !enRetouche_; };
    mise_.Haut = [barre = zone_.verticalScrollBar()] { return barre->value(); };
    mise_.Défiler = [barre = zone_.verticalScrollBar()](int haut) { barre->setValue(haut); };
    zone_.document()->setDocumentLayout(&mise_);
    zone_.setTabChangesFocus(!boîte.Tabulations);
    if (boîte.UneLigne)
        static_cast<Page&>(zone_).MettreEnLigne();
    retouches_.Noter(0, 0, boîte.Longueur());
    boîte.EditionFaite = [this](const RichTextBox::Edition& édition) {
        retouches_.Noter(édition.Début, édition.Retirés, édition.Ajoutés);
        hôte_.Marquer(*this);
    };
    QObject::connect(zone_.document(), &QTextDocument::contentsChange, &zone_,
                     [this](int position, int retirés, int ajoutés) { Reprendre(position, retirés, ajoutés); });
    QObject::connect(&zone_, &QTextEdit::cursorPositionChanged, &zone_, [this] { NoterSélection(); });
    QObject::connect(&zone_, &QTextEdit::selectionChanged, &zone_, [this] { NoterSélection(); });
}

VueTexteRiche::~VueTexteRiche()
{
    boîte_.EditionFaite = nullptr;
}

int VueTexteRiche::EnWidget(std::size_t position) const
{
    // The last block that starts at or before the position; block k has k line ends before it.
    const auto* document = zone_.document();
    int bas = 0;
    int haut = document->blockCount() - 1;
    while (bas < haut) {
        const int milieu = (bas + haut + 1) / 2;
        const auto début = DepuisWidget(document->findBlockByNumber(milieu).position());
        début <= position ? bas = milieu : haut = milieu - 1;
    }
    const auto bloc = document->findBlockByNumber(bas);
    return std::min(static_cast<int>(position) - bas, bloc.position() + bloc.length() - 1);
}

std::size_t VueTexteRiche::DepuisWidget(int position) const
{
    const auto bloc = zone_.document()->findBlock(position);
    return static_cast<std::size_t>(position) + static_cast<std::size_t>(std::max(0, bloc.blockNumber()));
}

int VueTexteRiche::Visé() const
{
    return static_cast<const Page&>(zone_).Visé();
}

void VueTexteRiche::Viser(int position)
{
    auto& page = static_cast<Page&>(zone_);
    page.Viser(position);
    page.MontrerVisé();
}

QString VueTexteRiche::Affiché(std::size_t début, std::size_t fin) const
{
    const auto& texte = boîte_.Text();
    QString affiché;
    affiché.reserve(static_cast<qsizetype>(fin - début));
    for (std::size_t i = début; i < fin; ++i) {
        const char16_t c = texte[i];
        if (c == u'\r' && i + 1 < fin && texte[i + 1] == u'\n') {
            affiché += QChar::ParagraphSeparator;
            ++i;
        } else if (c == Masque) {
            affiché += QChar{GlypheMasque};
        } else if (FinitLigne(c) || (c >= 0x2028 && c <= 0x2029)) {
            affiché += u' '; // half a line end, while the other half is on its way
        } else if (c == 0xFDD0 || c == 0xFDD1 || c == 0) {
            affiché += QChar::ReplacementCharacter; // the widget keeps these for itself
        } else {
            affiché += QChar{c};
        }
    }
    return affiché;
}

const QTextCharFormat& VueTexteRiche::FormatDe(const Format& format)
{
    const auto place = formats_.find(format);
    if (place != formats_.end())
        return place->second;
    auto qt = EnQt(format, échelleMontrée_);
    if (boîte_.UneLigne && fondMontré_.isValid() && qt.foreground() != Qt::NoBrush &&
        Contraste(qt.foreground().color(), fondMontré_) < ContrasteMinimum)
        qt.setBackground(EncreSur(qt.foreground().color(), Qt::black)); // on a ground of their own
    return formats_.emplace(format, std::move(qt)).first->second;
}

Habillage VueTexteRiche::Habiller(const QTextBlock& bloc)
{
    const auto& texte = boîte_.TextRTF();
    const auto début = DepuisWidget(bloc.position());
    const auto fin = début + static_cast<std::size_t>(bloc.length()) - 1;
    Habillage habillage{{}, FormatDe(texte.FormatEn(début)), EnQt(texte.ParagrapheEn(début), échelleMontrée_)};
    texte.PourChaqueTranche(début, fin, [&](const Tranche& tranche) {
        habillage.Lettres.push_back({static_cast<int>(tranche.Début - début),
                                     static_cast<int>(tranche.Fin - tranche.Début), FormatDe(*tranche.Style)});
    });
    return habillage;
}

// What is to be read has larger letters and lines farther apart than what is written.
void VueTexteRiche::SuivreEchelle()
{
    static const auto LigneEntière = // 75 characters, as far apart as French has them
        QStringLiteral("Chaque matin, le petit renard file vers la forêt où son amie attend déjà là");
    const double voulue = hôte_.Echelle() * (boîte_.Locked ? 1.15 : 1);
    const auto fond = EnQColor(boîte_.BackColor, {});
    if (voulue == échelleMontrée_ && (fond == fondMontré_ || !boîte_.UneLigne))
        return;
    échelleMontrée_ = voulue;
    fondMontré_ = fond;
    formats_.clear();
    if (!boîte_.UneLigne) {
        mise_.Interligne = boîte_.Locked ? 1.4 : 1.2;
        const QFontMetricsF mesure{PolicePour({}, boîte_.FontSize, false, voulue)};
        mise_.LargeurDeLecture = mesure.horizontalAdvance(LigneEntière);
    }
    mise_.Périmer(0, zone_.document()->blockCount() - 1);
}

void VueTexteRiche::Synchroniser()
{
    static_cast<Page&>(zone_).Verrouiller(boîte_.Locked);
    ColorerFond(Qt::white); // its letters have colours of their own, chosen for paper
    Vue::Synchroniser();
    enSynchro_ = true;
    mise_.MontrerSélection = boîte_.BackColor == CouleurAuto || boîte_.BackColor == Blanc;
    SuivreEchelle();
    enRetouche_ = true;
    for (const auto& retouche : retouches_.Prendre())
        Mettre(retouche);
    enRetouche_ = false;
    mise_.Avancer();
    MettreSélection();
    HausserCurseur();
    enSynchro_ = false;
}

void VueTexteRiche::Mettre(Retouche retouche)
{
    // A line end is taken as a whole, or not at all.
    const auto& texte = boîte_.Text();
    while (retouche.Début > 0 && texte[retouche.Début - 1] == u'\r') {
        --retouche.Début;
        ++retouche.Anciens;
        ++retouche.Nouveaux;
    }
    while (retouche.Début + retouche.Nouveaux < texte.size() && texte[retouche.Début + retouche.Nouveaux] == u'\n') {
        ++retouche.Anciens;
        ++retouche.Nouveaux;
    }
    const int début = EnWidget(retouche.Début);
    const int fin = EnWidget(retouche.Début + retouche.Anciens);
    const auto nouveau = Affiché(retouche.Début, retouche.Début + retouche.Nouveaux);
    QTextCursor curseur{zone_.document()};
    curseur.setPosition(début);
    curseur.setPosition(fin, QTextCursor::KeepAnchor);
    const auto ancien = curseur.selectedText();
    // Paragraphs that stay keep their lines.
    const auto devant =
        std::mismatch(ancien.begin(), ancien.end(), nouveau.begin(), nouveau.end()).first - ancien.begin();
    const auto reste = std::min(ancien.size(), nouveau.size()) - devant;
    const auto derrière =
        std::mismatch(ancien.rbegin(), ancien.rbegin() + reste, nouveau.rbegin()).first - ancien.rbegin();
    if (devant + derrière < std::max(ancien.size(), nouveau.size())) {
        curseur.setPosition(début + static_cast<int>(devant));
        curseur.setPosition(fin - static_cast<int>(derrière), QTextCursor::KeepAnchor);
        curseur.insertText(nouveau.sliced(devant, nouveau.size() - devant - derrière), {});
    }
    const auto* document = zone_.document();
    mise_.Périmer(document->findBlock(début).blockNumber(),
                  document->findBlock(début + static_cast<int>(nouveau.size())).blockNumber());
}

void VueTexteRiche::MettreSélection()
{
    auto curseur = zone_.textCursor();
    const int début = EnWidget(boîte_.SelStart());
    const int fin = EnWidget(boîte_.SelStart() + boîte_.SelLength());
    if (curseur.selectionStart() == début && curseur.selectionEnd() == fin)
        return;
    const int défilement = zone_.verticalScrollBar()->value();
    curseur.setPosition(début);
    curseur.setPosition(fin, QTextCursor::KeepAnchor);
    zone_.setTextCursor(curseur);
    // Rules walk over a locked text with an empty selection; only what is marked must come into sight.
    if (boîte_.Locked && début == fin)
        zone_.verticalScrollBar()->setValue(défilement);
    else
        MontrerCurseur();
    if (zone_.textCursor().hasSelection())
        hôte_.Dégager(PlaceSélection());
}

QRect VueTexteRiche::PlaceSélection() const
{
    auto bout = zone_.textCursor();
    auto cadre = zone_.cursorRect(bout);
    bout.setPosition(bout.anchor());
    cadre = cadre.united(zone_.cursorRect(bout));
    return {zone_.viewport()->mapToGlobal(cadre.topLeft()), cadre.size()};
}

// Places far off are guesses: what comes into sight is laid out, and may push the caret out again.
void VueTexteRiche::MontrerCurseur()
{
    const auto* barre = zone_.verticalScrollBar();
    for (int avant = -1; avant != barre->value();) {
        avant = barre->value();
        zone_.ensureCursorVisible();
        mise_.Préparer(barre->value(), barre->value() + zone_.viewport()->height());
    }
}

// In a paragraph without letters the caret is as high as the letters to come.
void VueTexteRiche::HausserCurseur()
{
    QTextCursor ici{zone_.textCursor().block()};
    if (ici.block().length() > 1)
        return;
    const auto& format = FormatDe(boîte_.TextRTF().FormatEn(DepuisWidget(ici.position())));
    if (ici.blockCharFormat() != format)
        ici.setBlockCharFormat(format);
}

// ---- From the widget to the element ------------------------------------------------------------------------------

bool VueTexteRiche::Taper(const Touche& touche)
{
    // In a locked text, what isn't thrown away leads to a character and clicks it.
    return boîte_.Taper(touche);
}

Format VueTexteRiche::FormatTapé(std::size_t début, std::size_t retirés, VueTexte arrivé) const
{
    const auto& texte = boîte_.TextRTF();
    const bool auCurseur = retirés == 0 && boîte_.SelLength() == 0 && boîte_.SelStart() == début;
    Format format = texte.FormatEn(auCurseur || retirés > 0 || début == 0 ? début : début - 1);
    if (auCurseur) {
        format.Police = boîte_.SelFontName().value_or(format.Police);
        format.Taille = boîte_.SelFontSize().value_or(format.Taille);
        format.Teinte = boîte_.SelColor().value_or(format.Teinte);
        format.Gras = boîte_.SelBold().value_or(format.Gras);
        format.Italique = boîte_.SelItalic().value_or(format.Italique);
        format.Souligné = boîte_.SelUnderline().value_or(format.Souligné);
        format.Barré = boîte_.SelStrikeThru().value_or(format.Barré);
    }
    format.Barré = format.Barré && !Contient(arrivé, u'\n') && DansUneMarque(texte, début, début + retirés);
    return format;
}

void VueTexteRiche::Reprendre(int position, int retirés, int ajoutés)
{
    if (enSynchro_ || !Agissante() || boîte_.Locked)
        return;
    auto* document = zone_.document();
    // The widget may count its own end of text among what has changed.
    const int excès = std::max(0, position + ajoutés - (document->characterCount() - 1));
    ajoutés -= excès;
    retirés = std::max(0, retirés - excès);

    QTextCursor nouveau{document};
    nouveau.setPosition(position);
    nouveau.setPosition(position + ajoutés, QTextCursor::KeepAnchor);
    Texte arrivé;
    for (const auto caractère : nouveau.selectedText()) {
        if (caractère == QChar::ParagraphSeparator || caractère == QChar::LineSeparator)
            arrivé += FinDeLigne;
        else
            arrivé += caractère.unicode() == GlypheMasque ? Masque : caractère.unicode();
    }
    const auto& texte = boîte_.Text();
    auto début = DepuisWidget(position);
    auto fin = début;
    for (int i = 0; i < retirés && fin < texte.size(); ++i)
        fin += VueTexte{texte}.substr(fin, 2) == FinDeLigne ? 2 : 1;

    // The widget shows the characters; their formats come from the element, like all formats.
    const VueTexte ancien = VueTexte{texte}.substr(début, fin - début);
    retouches_.NoterMontrée(début, ancien.size(), arrivé.size());
    hôte_.Marquer(*this);
    if (ancien == arrivé) // laid out anew, or in another format
        return;
    // What the user had chosen is replaced whole, even by what begins as it did.
    const bool choisi = boîte_.SelLength() > 0 && boîte_.SelStart() == début && boîte_.SelLength() == ancien.size();
    const auto bords = choisi ? Bords{} : Communs(ancien, arrivé);
    début += bords.Devant;
    const auto partis = ancien.size() - bords.Devant - bords.Derrière;
    arrivé = arrivé.substr(bords.Devant, arrivé.size() - bords.Devant - bords.Derrière);
    const auto format = FormatTapé(début, partis, arrivé);
    boîte_.Editer(début, partis, TexteRiche{std::move(arrivé), format});
}

void VueTexteRiche::NoterSélection()
{
    // What the program has just chosen is still on its way to the widget.
    if (enSynchro_ || sale || !Agissante() || boîte_.Locked)
        return;
    const auto curseur = zone_.textCursor();
    const auto début = DepuisWidget(curseur.selectionStart());
    boîte_.Sélectionner(début, DepuisWidget(curseur.selectionEnd()) - début);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, RichTextBox& boîte, QWidget* parent)
{
    return std::make_unique<VueTexteRiche>(hôte, boîte, parent);
}

} // namespace tirelune
