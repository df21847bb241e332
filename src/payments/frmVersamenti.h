#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "payments/document_list.h"
#include "payments/payment_file.h"
#include "platform/form.h"
#include "reports/heading.h"
#include "screens/workplace.h"

namespace vorbano {

/// "Contributi e Ritenute": how the sums due for an election are paid, voice by voice, by which mandates and forms. The
/// search shows what is due now and brings the stored documents into line with it; then documents are entered, browsed,
/// changed, removed, and printed as a list. What can be used when follows from the phase of the work and from the boxes
/// that are ticked, in one place (`followState`).
///
/// `cmdConguaglio` turns the whole screen to the payments of the adjustment, with amounts and files of their own, and
/// back. Nothing of the one is ever written while the other is on show.
///
/// Its procedures stand in files by theme: frmVersamenti.cpp (loading, search), _conguaglio (to the adjustment and
/// back), _stato (what can be used when), _documento (the boxes of a document), _salva, _elenco (the panel of the
/// stored documents), _stampe.
struct frmVersamenti {
    Form form{"frmVersamenti", "Vorbano       Contributi e Ritenute"};
    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};  ///< types, as the folders tell them
    ComboBox Combo2{form, "Combo2"};  ///< dates of the type
    TextBox txtDataEle{form, "txtDataEle", 10};
    Button cmdAnteprima{form, "cmdAnteprima", "Ricerca"};
    Button cmdRiavvia{form, "cmdRiavvia", "&Annulla"};
    Button cmdInserire{form, "cmdInserire", "&Inserimento"};
    Button cmdVisualizza{form, "cmdVisualizza", "Visualizza"};
    Button cmdConguaglio{form, "cmdConguaglio", "Conguaglio"};
    Label Label21{form, "Label21", "IMPORTI RITENUTE CONGUAGLIO"};  ///< on show with the payments of the adjustment

    // The voices: box, rate, amount due, leave to type the amount.
    CheckBox Check1{form, "Check1", "Contributo Previdenziale a carico dipendente"};
    Label Label4{form, "Label4"};
    TextBox txtContrDip{form, "txtContrDip"};
    CheckBox Check2{form, "Check2", "Fondo Credito a carico dipendente"};
    Label Label3{form, "Label3"};
    TextBox txtFonCred{form, "txtFonCred"};
    CheckBox Check3{form, "Check3", "Contributo Previdenziale a carico Ente"};
    Label Label7{form, "Label7"};
    TextBox txtCoprEnte{form, "txtCoprEnte"};
    CheckBox Check4{form, "Check4", "IRAP a carico Ente"};
    Label Label8{form, "Label8"};
    TextBox txtIrapEnte{form, "txtIrapEnte"};
    CheckBox Check5{form, "Check5", "IRPEF"};
    TextBox txtIrpef{form, "txtIrpef", 20};
    CheckBox Check13{form, "Check13", "inserisci"};
    CheckBox Check11{form, "Check11", "INAIL"};
    TextBox txtInail{form, "txtInail", 20};
    CheckBox Check14{form, "Check14", "inserisci"};
    CheckBox Check17{form, "Check17", "INPS"};
    TextBox txtInps{form, "txtInps", 20};
    CheckBox Check18{form, "Check18", "inserisci"};
    Button cmdSalvaII{form, "cmdSalvaII", "Salva"};  ///< the amounts typed

    Frame Frame1{form, "Frame1", "Documento"};
    CheckBox Check6{Frame1, "Check6", "Mandato di pagamento"};
    TextBox txtMnumero{Frame1, "txtMnumero", 10};
    TextBox txtMdata{Frame1, "txtMdata", 10};
    CheckBox Check7{Frame1, "Check7", "Modello F24"};
    TextBox txtDataf24{Frame1, "txtDataf24", 10};
    CheckBox Check10{Frame1, "Check10", "Data versamento INPS"};
    CheckBox Check12{Frame1, "Check12", "data entro la quale sarà effetuato il versamento"};
    TextBox txtDatainail{Frame1, "txtDatainail", 10};
    CheckBox Check8{Frame1, "Check8", "In originale e copia autenticata"};
    CheckBox Check9{Frame1, "Check9", "In duplice copia Autenticata"};
    /// A receipt of earlier data, only shown.
    TextBox txtQnumero{Frame1, "txtQnumero"};
    TextBox txtQdata{Frame1, "txtQdata"};
    Button cmdSalva{Frame1, "cmdSalva", "&Salva"};
    Button cmdAggiungi{Frame1, "cmdAggiungi", "A&ggiu&ngi Documento corrente"};
    Button cmdNuovo{Frame1, "cmdNuovo", "Nuovo Documento"};
    Button cmdAnnulla2{Frame1, "cmdAnnulla2", "&Chiudi"};

    Frame Frame2{form, "Frame2", "Documenti inseriti"};
    ListBox List1{Frame2, "List1"};
    Label Label15{Frame2, "Label15"};  ///< number of the record on show
    Button cmdPrecedente{Frame2, "cmdPrecedente", "Precedente"};
    Button cmdSuccessivo{Frame2, "cmdSuccessivo", "Successivo"};
    Button cmdModifica{Frame2, "cmdModifica", "Modifica"};
    Button cmdElimina{Frame2, "cmdElimina", "E&limina Documento"};
    Button cmdTermina{Frame2, "cmdTermina", "Torna all'elenco"};
    Button cmdAnnulla3{Frame2, "cmdAnnulla3", "Chiudi elenco"};
    HiddenLabel Label17{form, "Label17"};  ///< assigning a record number shows that record

    CheckBox Check15{form, "Check15", "Elenco completo"};
    CheckBox Check16{form, "Check16", "Solo documenti inseriti"};
    Button cmdVideo{form, "cmdVideo", "&Anteprima"};
    Button cmdStampa{form, "cmdStampa", "Stam&pa"};
    Button cmdSoloElenco{form, "cmdSoloElenco", "Stampa Elenco"};

    // The captions of the documents.
    HiddenLabel lblComune{form, "lblComune"};
    HiddenLabel lblElezione{form, "lblElezione"};
    HiddenLabel lbldata{form, "lbldata"};

    explicit frmVersamenti(const Workplace& workplace);

    void Combo1_Click();
    void Combo2_Click();
    void cmdAnteprima_Click();
    void cmdRiavvia_Click();
    void cmdInserire_Click();
    void cmdVisualizza_Click();
    void cmdConguaglio_Click();
    void Check6_Click();
    void Check7_Click();
    void Check8_Click();
    void Check9_Click();
    void Check10_Click();
    void Check12_Click();
    void Check15_Click();
    void Check16_Click();
    void cmdSalva_Click();
    void cmdSalvaII_Click();
    void cmdAggiungi_Click();
    void cmdNuovo_Click();
    void cmdAnnulla2_Click();
    void List1_Click();
    void Label17_Change();
    void cmdPrecedente_Click();
    void cmdSuccessivo_Click();
    void cmdModifica_Click();
    void cmdElimina_Click();
    void cmdTermina_Click();
    void cmdAnnulla3_Click();
    void cmdVideo_Click();
    void cmdStampa_Click();
    void cmdSoloElenco_Click();
    void mnuEsci_Click();

  private:
    /// How far the work has come.
    enum class Phase : std::uint8_t {
        nothing,   ///< no election is called up
        searched,  ///< what is due is on show
        entry,     ///< documents are entered
        list,      ///< the stored documents are listed
        shown,     ///< one of them is on show
        change,    ///< and is changed in its place
    };
    /// The controls of a voice, in the order of `paymentVoices`.
    struct VoiceControls {
        CheckBox* box;
        TextBox* amount;
        Label* rate;                 ///< nullptr: the voice has none
        CheckBox* typing;            ///< lets the amount be typed; nullptr: it comes from the employees
        std::string_view missing{};  ///< what is told when the amount is missing, under this title
        std::string_view title{};
    };

    void hangProcedures();
    void followState();
    void followVoices();
    void followDocument();
    void go(Phase phase);

    [[nodiscard]] Election election() const;
    /// The payments on show. Everything that reads or writes them asks this.
    [[nodiscard]] PaymentSet onShow() const;
    void adjust(bool on);
    /// Calls up the election; false when it cannot be, and then all stays as it was. What is wrong is told.
    bool search();
    bool showAdjustment();
    void tellMissing();
    void showDue(const PaymentsDue& due);
    [[nodiscard]] PaymentAmounts amountsOnScreen() const;
    /// Reads the documents on show anew; tells when they cannot be read.
    bool readAll();

    void voiceTicked(std::size_t voice);
    void typingTicked(std::size_t voice);
    void touched();
    void untickAll();
    void clearDocument();
    [[nodiscard]] std::vector<TextBox*> documentFields();
    [[nodiscard]] std::vector<CheckBox*> documentBoxes();
    /// Index of the voice whose box is ticked.
    [[nodiscard]] std::optional<std::size_t> chosenVoice() const;
    [[nodiscard]] bool amountIsTyped() const;
    /// Voice, document and copies are ticked as one of the documents that can be stored.
    [[nodiscard]] bool complete() const;
    /// Tells what is missing and puts the cursor there; true when all is there.
    bool checked();
    [[nodiscard]] PaymentRecord documentOnScreen();
    void fillStoredDate(std::size_t voice, TextBox& field);

    void showList();
    void vedo(const PaymentRecord& document);
    void printList(Destination destination, std::string_view title);
    bool anyDocument();
    void VedoVers(Destination destination);
    void VedoElenco(Destination destination, std::string_view inailWords);
    void Anteprimac(Destination destination);

    Workplace desk_;
    std::array<VoiceControls, paymentVoiceCount> voices_{{
        {&Check1, &txtContrDip, &Label4, nullptr},
        {&Check2, &txtFonCred, &Label3, nullptr},
        {&Check3, &txtCoprEnte, &Label7, nullptr},
        {&Check4, &txtIrapEnte, &Label8, nullptr},
        {&Check5, &txtIrpef, nullptr, &Check13, "Inserire l'mporto dell'IRPEF", "IRPEF"},
        {&Check11, &txtInail, nullptr, &Check14, "Inserire l'mporto dell'INAIL", "INAIL"},
        // The title is deliberately that of the voice above.
        {&Check17, &txtInps, nullptr, &Check18, "Inserire l'mporto dell'INPS", "INAIL"},
    }};
    Phase phase_ = Phase::nothing;
    PaymentAmounts due_{};                           ///< as the files have them
    std::array<bool, paymentVoiceCount> offered_{};  ///< the amount may be typed
    bool adjustable_ = false;                        ///< the election has an adjustment
    bool saved_ = false;                             ///< the document on the screen is stored as it stands
    std::vector<PaymentRecord> documents_;
    std::vector<DocumentLine> lines_;
    PaymentRecord shown_{};  ///< the document on show, as stored
};

}  // namespace vorbano
