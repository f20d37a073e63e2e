#include "bindings.hpp"

#include <nfe_v4.00.hxx>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <sstream>

namespace kivo::benchmarks {

namespace {

/// Xerces is ready as long as one of these exists.
struct xerces {
    xerces() { xercesc::XMLPlatformUtils::Initialize(); }
    xerces(const xerces&) = delete;
    xerces& operator=(const xerces&) = delete;
    ~xerces() { xercesc::XMLPlatformUtils::Terminate(); }
};

} // namespace

struct bound_invoice::content {
    xerces ready;
    std::unique_ptr<bindings::TNFe> invoice;
};

bound_invoice::bound_invoice(std::string_view xml) : content_(std::make_unique<content>()) {
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(),
                                      "invoice");
    content_->invoice = bindings::NFe(source, xml_schema::flags::dont_validate |
                                                  xml_schema::flags::dont_initialize);
}

bound_invoice::~bound_invoice() = default;

std::string bound_invoice::xml() const {
    std::ostringstream out;
    xml_schema::namespace_infomap namespaces;
    namespaces[""].name = "http://www.portalfiscal.inf.br/nfe";
    bindings::NFe(out, *content_->invoice, namespaces, "UTF-8",
                  xml_schema::flags::dont_initialize | xml_schema::flags::dont_pretty_print);
    return std::move(out).str();
}

} // namespace kivo::benchmarks
