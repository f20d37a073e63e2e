#pragma once

#include <string>

namespace kivo::erp::v12::layout {

/// Texts of elements that the layout demands and no object holds. Reading fills them with those of
/// the document, so that a document that is read and written keeps them; an empty one is left out,
/// but for the two that are derived from the invoice.
struct outside_texts {
    std::string versao = "4.00"; ///< release of the layout (attribute versao)
    std::string tp_imp;          ///< printed form (tpImp); empty: 1, or 4 for model 65
    std::string c_dv;            ///< check digit of the key (cDV); empty: the key's
    std::string proc_emi = "0";  ///< issuing process (procEmi); 0: own program
    std::string ver_proc = "kivo-erp-fiscal 12"; ///< version of the program (verProc)
};

} // namespace kivo::erp::v12::layout
