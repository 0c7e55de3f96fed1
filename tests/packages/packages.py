"""Makes workbooks with whatever is met in the wild: a table of features, each a few parts, alone or combined.

    package(["chart", "table"]) -> the bytes of an .xlsx file (.xlsm with "vba")

The sheet "One" is what tests work on; most features lie on it, some on "Two". What the parts say is as little as Excel's
own files of that feature say, and all of it is there to be kept.
"""
import io
import zipfile

MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
REL = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PKG = "http://schemas.openxmlformats.org/package/2006"
X14 = "http://schemas.microsoft.com/office/spreadsheetml/2009/9/main"
MC = "http://schemas.openxmlformats.org/markup-compatibility/2006"
MSREL = "http://schemas.microsoft.com/office"
SML = "application/vnd.openxmlformats-officedocument.spreadsheetml"
DML = "application/vnd.openxmlformats-officedocument"
STRICT = {
    MAIN: "http://purl.oclc.org/ooxml/spreadsheetml/main",
    REL: "http://purl.oclc.org/ooxml/officeDocument/relationships",
    "http://schemas.openxmlformats.org/drawingml/2006/": "http://purl.oclc.org/ooxml/drawingml/",
}
DRAWING = ('xmlns:xdr="http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing" '
           'xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main"')
ANCHOR = ("<xdr:from><xdr:col>5</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>1</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:from>"
          "<xdr:to><xdr:col>9</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>9</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:to>")
PIXEL = bytes.fromhex("89504e470d0a1a0a0000000d4948445200000001000000010802000000907753de0000000c4944415408d763f8cfc000000301"
                      "0100c9fe92ef0000000049454e44ae426082")

# Children of a worksheet in the order that the format asks for.
ORDER = ("sheetPr", "dimension", "sheetViews", "sheetFormatPr", "cols", "sheetData", "sheetProtection", "autoFilter",
         "mergeCells", "phoneticPr", "conditionalFormatting", "dataValidations", "hyperlinks", "pageMargins", "pageSetup",
         "headerFooter", "rowBreaks", "drawing", "legacyDrawing", "controls", "tableParts", "extLst")


class Sheet:
    def __init__(self):
        self.children = {"sheetViews": '<sheetViews><sheetView workbookViewId="0"/></sheetViews>',
                         "pageMargins": '<pageMargins left="0.7" right="0.7" top="0.75" bottom="0.75" header="0.3" footer="0.3"/>'}
        self.extensions = []
        self.relationships = []  # type, target, mode
        self.cells = {}          # (row, column): the element
        self.references = True

    def relate(self, kind, target, mode=""):
        self.relationships.append((kind, target, mode))
        return f"rId{len(self.relationships)}"

    def cell(self, row, column, inside, attributes=""):
        self.cells[row, column] = (attributes, inside)

    def xml(self):
        rows = ""
        for row in sorted({row for row, _ in self.cells}):
            inside = ""
            for column in sorted(column for r, column in self.cells if r == row):
                attributes, content = self.cells[row, column]
                reference = f' r="{chr(64 + column)}{row}"' if self.references else ""
                inside += f"<c{reference}{attributes}>{content}</c>"
            rows += f'<row r="{row}">{inside}</row>' if self.references else f"<row>{inside}</row>"
        children = dict(self.children, sheetData=f"<sheetData>{rows}</sheetData>")
        if self.extensions:
            children["extLst"] = f"<extLst>{''.join(self.extensions)}</extLst>"
        inside = "".join(children[name] for name in ORDER if name in children)
        return f'<worksheet xmlns="{MAIN}" xmlns:r="{REL}" xmlns:mc="{MC}" xmlns:x14="{X14}">{inside}</worksheet>'


class Book:
    def __init__(self):
        self.sheets = [Sheet(), Sheet()]
        self.parts = {}          # name: bytes or text
        self.types = {}          # name: content type
        self.defaults = {"rels": f"{PKG.replace('http://schemas.openxmlformats.org/package/2006', 'application/vnd.openxmlformats-package')}"
                                 ".relationships+xml", "xml": "application/xml"}
        self.relationships = []  # of the workbook
        self.roots = []          # of the package
        self.workbook = {}       # children of the workbook beside its sheets
        self.kind = f"{SML}.sheet.main+xml"
        self.texts = []          # what is done to every text in the end
        one = self.sheets[0]
        for row in range(1, 9):
            one.cell(row, 1, f"<v>{row - 1}</v>", ' t="s"')
            one.cell(row, 2, f"<v>{row * 1.5}</v>", ' s="1"')
            one.cell(row, 3, f"<f>B{row}*2</f><v>{row * 3}</v>")
        self.sheets[1].cell(1, 1, "<f>One!B1</f><v>1.5</v>")
        self.add("xl/sharedStrings.xml", f'<sst xmlns="{MAIN}" count="8" uniqueCount="8">' +
                 "".join(f"<si><t>label {n}</t></si>" for n in range(8)) + "</sst>", f"{SML}.sharedStrings+xml")
        self.add("xl/styles.xml", f'<styleSheet xmlns="{MAIN}"><numFmts count="1"><numFmt numFmtId="164" formatCode="0.0"/></numFmts>'
                 '<fonts count="1"><font><sz val="11"/><name val="Calibri"/></font></fonts><fills count="2"><fill><patternFill '
                 'patternType="none"/></fill><fill><patternFill patternType="gray125"/></fill></fills><borders count="1"><border/>'
                 '</borders><cellStyleXfs count="1"><xf/></cellStyleXfs><cellXfs count="2"><xf xfId="0"/><xf numFmtId="164" xfId="0"/>'
                 '</cellXfs><cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles><dxfs count="1"><dxf>'
                 '<font><b/></font></dxf></dxfs></styleSheet>', f"{SML}.styles+xml")
        self.relate(f"{REL}/sharedStrings", "sharedStrings.xml")
        self.relate(f"{REL}/styles", "styles.xml")

    def add(self, name, content, content_type=None):
        self.parts[name] = content
        if content_type:
            self.types[name] = content_type

    def relate(self, kind, target, mode=""):
        self.relationships.append((kind, target, mode))
        return f"rId{len(self.relationships) + len(self.sheets)}"

    @staticmethod
    def rels(rows):
        each = "".join(f'<Relationship Id="rId{n}" Type="{kind}" Target="{target}"{mode and f" TargetMode={chr(34)}{mode}{chr(34)}"}/>'
                       for n, (kind, target, mode) in enumerate(rows, 1))
        return f'<Relationships xmlns="{PKG}/relationships">{each}</Relationships>'

    def bytes(self):
        parts = {}
        for n, sheet in enumerate(self.sheets, 1):
            self.types[f"xl/worksheets/sheet{n}.xml"] = f"{SML}.worksheet+xml"
            parts[f"xl/worksheets/sheet{n}.xml"] = sheet.xml()
            if sheet.relationships:
                parts[f"xl/worksheets/_rels/sheet{n}.xml.rels"] = self.rels(sheet.relationships)
        children = dict(self.workbook, sheets='<sheets><sheet name="One" sheetId="1" r:id="rId1"/>'
                                              '<sheet name="Two" sheetId="2" r:id="rId2"/></sheets>')
        order = ("sheets", "externalReferences", "definedNames", "calcPr", "pivotCaches", "extLst")
        parts["xl/workbook.xml"] = (f'<workbook xmlns="{MAIN}" xmlns:r="{REL}">' +
                                    "".join(children[name] for name in order if name in children) + "</workbook>")
        parts["xl/_rels/workbook.xml.rels"] = self.rels(
            [(f"{REL}/worksheet", f"worksheets/sheet{n}.xml", "") for n in range(1, len(self.sheets) + 1)] + self.relationships)
        parts["_rels/.rels"] = self.rels([(f"{REL}/officeDocument", "xl/workbook.xml", ""), *self.roots])
        parts.update(self.parts)
        types = dict(self.types, **{"xl/workbook.xml": self.kind})
        parts["[Content_Types].xml"] = (
            f'<Types xmlns="{PKG}/content-types">' +
            "".join(f'<Default Extension="{ending}" ContentType="{kind}"/>' for ending, kind in self.defaults.items()) +
            "".join(f'<Override PartName="/{name}" ContentType="{kind}"/>' for name, kind in types.items()) + "</Types>")
        packed = io.BytesIO()
        with zipfile.ZipFile(packed, "w", zipfile.ZIP_DEFLATED) as package:
            for name in sorted(parts, key=lambda name: (name != "[Content_Types].xml", name)):
                content = parts[name]
                if isinstance(content, str):
                    for change in self.texts:
                        content = change(name, content)
                    if isinstance(content, str):
                        content = ('<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n' + content).encode()
                info = zipfile.ZipInfo(name, (2021, 2, 3, 4, 5, 6))
                info.compress_type = zipfile.ZIP_DEFLATED
                package.writestr(info, content)
        return packed.getvalue()


def drawing_of(book, sheet, inside, relationships):
    """One drawing a sheet holds what all features put into it."""
    name = f"xl/drawings/drawing{book.sheets.index(sheet) + 1}.xml"
    rels = f"xl/drawings/_rels/drawing{book.sheets.index(sheet) + 1}.xml.rels"
    if name not in book.parts:
        book.add(name, "", f"{DML}.drawing+xml")
        sheet.children["drawing"] = f'<drawing r:id="{sheet.relate(f"{REL}/drawing", f"../drawings/{name[12:]}")}"/>'
        book.drawings = getattr(book, "drawings", {})
        book.drawings[name] = ["", []]
    state = book.drawings[name]
    for row in relationships:
        state[1].append(row)
        inside = inside.replace("RID", f"rId{len(state[1])}", 1)
    state[0] += f'<xdr:twoCellAnchor>{ANCHOR}{inside}<xdr:clientData/></xdr:twoCellAnchor>'
    book.parts[name] = f'<xdr:wsDr {DRAWING} xmlns:r="{REL}">{state[0]}</xdr:wsDr>'
    book.parts[rels] = Book.rels(state[1])


def chart(book):
    book.add("xl/charts/chart1.xml", '<c:chartSpace xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart"><c:chart>'
             "<c:plotArea><c:barChart><c:ser><c:val><c:numRef><c:f>One!$B$1:$B$8</c:f><c:numCache><c:ptCount val=\"1\"/><c:pt "
             'idx="0"><c:v>1.5</c:v></c:pt></c:numCache></c:numRef></c:val></c:ser></c:barChart></c:plotArea></c:chart></c:chartSpace>',
             f"{DML}.drawingml.chart+xml")
    drawing_of(book, book.sheets[0], '<xdr:graphicFrame><a:graphic><a:graphicData uri="chart"><c:chart xmlns:c="urn:c" r:id="RID"/>'
               "</a:graphicData></a:graphic></xdr:graphicFrame>", [(f"{REL}/chart", "../charts/chart1.xml", "")])


def picture(book):
    book.defaults["png"] = "image/png"
    book.add("xl/media/image1.png", PIXEL)
    drawing_of(book, book.sheets[0], '<xdr:pic><xdr:blipFill><a:blip r:embed="RID"/></xdr:blipFill></xdr:pic>',
               [(f"{REL}/image", "../media/image1.png", "")])


def pivot(book):
    book.add("xl/pivotCache/pivotCacheDefinition1.xml", f'<pivotCacheDefinition xmlns="{MAIN}" xmlns:r="{REL}" r:id="rId1"><cacheSource '
             'type="worksheet"><worksheetSource ref="A1:B8" sheet="One"/></cacheSource></pivotCacheDefinition>',
             f"{SML}.pivotCacheDefinition+xml")
    book.add("xl/pivotCache/_rels/pivotCacheDefinition1.xml.rels", Book.rels([(f"{REL}/pivotCacheRecords", "pivotCacheRecords1.xml", "")]))
    book.add("xl/pivotCache/pivotCacheRecords1.xml", f'<pivotCacheRecords xmlns="{MAIN}" count="1"><r><n v="1"/></r></pivotCacheRecords>',
             f"{SML}.pivotCacheRecords+xml")
    cache = book.relate(f"{REL}/pivotCacheDefinition", "pivotCache/pivotCacheDefinition1.xml")
    book.workbook["pivotCaches"] = f'<pivotCaches><pivotCache cacheId="7" r:id="{cache}"/></pivotCaches>'
    book.add("xl/pivotTables/pivotTable1.xml", f'<pivotTableDefinition xmlns="{MAIN}" name="P" cacheId="7"><location ref="A3:B9" '
             'firstHeaderRow="1" firstDataRow="1" firstDataCol="1"/></pivotTableDefinition>', f"{SML}.pivotTable+xml")
    book.add("xl/pivotTables/_rels/pivotTable1.xml.rels",
             Book.rels([(f"{REL}/pivotCacheDefinition", "../pivotCache/pivotCacheDefinition1.xml", "")]))
    book.sheets[1].relate(f"{REL}/pivotTable", "../pivotTables/pivotTable1.xml")


def slicer(book):
    book.add("xl/slicers/slicer1.xml", f'<slicers xmlns="{X14}"><slicer name="S" cache="Slicer_S"/></slicers>', "application/vnd.ms-excel.slicer+xml")
    book.add("xl/slicerCaches/slicerCache1.xml", f'<slicerCacheDefinition xmlns="{X14}" name="Slicer_S"/>', "application/vnd.ms-excel.slicerCache+xml")
    cache = book.relate(f"{MSREL}/2007/relationships/slicerCache", "slicerCaches/slicerCache1.xml")
    book.workbook["extLst"] = (f'<extLst><ext uri="{{BBE1A952-AA13-448e-AADC-164F8A28A991}}" xmlns:x14="{X14}"><x14:slicerCaches>'
                               f'<x14:slicerCache r:id="{cache}"/></x14:slicerCaches></ext></extLst>')
    mine = book.sheets[0].relate(f"{MSREL}/2007/relationships/slicer", "../slicers/slicer1.xml")
    book.sheets[0].extensions.append(f'<ext uri="{{A8765BA9-456A-4dab-B4F3-ACF838C121DE}}"><x14:slicerList><x14:slicer r:id="{mine}"/>'
                                     "</x14:slicerList></ext>")


def table(book):
    book.add("xl/tables/table1.xml", f'<table xmlns="{MAIN}" id="1" name="T" displayName="T" ref="F1:G3"><autoFilter ref="F1:G3"/>'
             '<tableColumns count="2"><tableColumn id="1" name="a"/><tableColumn id="2" name="b"><calculatedColumnFormula>T[a]*2'
             "</calculatedColumnFormula></tableColumn></tableColumns></table>", f"{SML}.table+xml")
    mine = book.sheets[0].relate(f"{REL}/table", "../tables/table1.xml")
    book.sheets[0].children["tableParts"] = f'<tableParts count="1"><tablePart r:id="{mine}"/></tableParts>'


def threaded_comments(book):
    sheet = book.sheets[0]
    book.defaults["vml"] = f"{DML}.vmlDrawing"
    book.add("xl/comments1.xml", f'<comments xmlns="{MAIN}"><authors><author>tc</author></authors><commentList><comment ref="B2" authorId="0">'
             "<text><t>[Threaded comment]</t></text></comment></commentList></comments>", f"{SML}.comments+xml")
    book.add("xl/threadedComments/threadedComment1.xml", f'<ThreadedComments xmlns="{MSREL}/spreadsheetml/2018/threadedcomments">'
             '<threadedComment ref="B2" personId="{1}" id="{2}"><text>why?</text></threadedComment></ThreadedComments>',
             "application/vnd.ms-excel.threadedcomments+xml")
    book.add("xl/persons/person.xml", f'<personList xmlns="{MSREL}/spreadsheetml/2018/threadedcomments"><person displayName="A" id="{{1}}"/>'
             "</personList>", "application/vnd.ms-excel.person+xml")
    book.add("xl/drawings/vmlDrawing1.vml", b'<xml xmlns:v="urn:schemas-microsoft-com:vml"><v:shape id="_x0000_s1"/></xml>')
    sheet.relate(f"{REL}/comments", "../comments1.xml")
    sheet.relate(f"{MSREL}/2017/10/relationships/threadedComment", "../threadedComments/threadedComment1.xml")
    book.relate(f"{MSREL}/2017/10/relationships/person", "persons/person.xml")
    sheet.children["legacyDrawing"] = f'<legacyDrawing r:id="{sheet.relate(f"{REL}/vmlDrawing", "../drawings/vmlDrawing1.vml")}"/>'


def activex(book):
    sheet = book.sheets[0]
    book.defaults["bin"] = "application/vnd.ms-office.activeX"
    book.add("xl/activeX/activeX1.xml", '<ax:ocx xmlns:ax="http://schemas.microsoft.com/office/2006/activeX" '
             f'xmlns:r="{REL}" ax:classid="{{8BD21D40-EC42-11CE-9E0D-00AA006002F3}}" ax:persistence="persistStreamInit" r:id="rId1"/>',
             "application/vnd.ms-office.activeX+xml")
    book.add("xl/activeX/_rels/activeX1.xml.rels", Book.rels([(f"{MSREL}/2006/relationships/activeXControlBinary", "activeX1.bin", "")]))
    book.add("xl/activeX/activeX1.bin", bytes(range(256)))
    mine = sheet.relate(f"{REL}/control", "../activeX/activeX1.xml")
    sheet.children["controls"] = (f'<mc:AlternateContent><mc:Choice Requires="x14"><controls><control shapeId="1025" r:id="{mine}" name="C"/>'
                                  "</controls></mc:Choice></mc:AlternateContent>")


def vba(book):
    book.kind = "application/vnd.ms-excel.sheet.macroEnabled.main+xml"
    book.add("xl/vbaProject.bin", bytes.fromhex("d0cf11e0a1b11ae1") + bytes(504), "application/vnd.ms-office.vbaProject")
    book.relate(f"{MSREL}/2006/relationships/vbaProject", "vbaProject.bin")


def external_link(book):
    book.add("xl/externalLinks/externalLink1.xml", f'<externalLink xmlns="{MAIN}" xmlns:r="{REL}"><externalBook r:id="rId1"><sheetNames>'
             '<sheetName val="S"/></sheetNames><sheetDataSet><sheetData sheetId="0"><row r="1"><cell r="A1"><v>4</v></cell></row></sheetData>'
             "</sheetDataSet></externalBook></externalLink>", f"{SML}.externalLink+xml")
    book.add("xl/externalLinks/_rels/externalLink1.xml.rels",
             Book.rels([(f"{REL}/externalLinkPath", "file:///C:/models/other%20book.xlsx", "External")]))
    mine = book.relate(f"{REL}/externalLink", "externalLinks/externalLink1.xml")
    book.workbook["externalReferences"] = f'<externalReferences><externalReference r:id="{mine}"/></externalReferences>'
    book.sheets[0].cell(10, 1, "<f>[1]S!A1*2</f><v>8</v>")


def data_table(book):
    book.sheets[0].cell(11, 2, '<f t="dataTable" ref="B11:B12" dt2D="0" dtr="0" r1="A1" ca="1"/><v>3</v>')
    book.sheets[0].cell(12, 2, "<v>4</v>")


def dynamic_arrays(book):
    book.add("xl/metadata.xml", f'<metadata xmlns="{MAIN}"><metadataTypes count="1"><metadataType name="XLDAPR" minSupportedVersion="120000"/>'
             '</metadataTypes><futureMetadata name="XLDAPR" count="1"><bk><extLst/></bk></futureMetadata><cellMetadata count="1"><bk>'
             '<rc t="1" v="0"/></bk></cellMetadata></metadata>', f"{SML}.sheetMetadata+xml")
    book.relate(f"{REL}/sheetMetadata", "metadata.xml")
    book.sheets[0].cell(13, 1, '<f t="array" ref="A13:A14">_xlfn._xlws.SORT(B1:B2)</f><v>1.5</v>', ' cm="1"')
    book.sheets[0].cell(14, 1, "<v>3</v>")
    book.sheets[0].cell(14, 2, "<v>#VALUE!</v>", ' t="e" vm="1"')


def sparklines(book):
    book.sheets[0].extensions.append(
        '<ext uri="{05C60535-1F16-4fd2-B633-F4F36F0B64E0}"><x14:sparklineGroups xmlns:xm="http://schemas.microsoft.com/office/excel/2006/main">'
        "<x14:sparklineGroup><x14:colorSeries rgb=\"FF376092\"/><x14:sparklines><x14:sparkline><xm:f>One!B1:B8</xm:f><xm:sqref>E1</xm:sqref>"
        "</x14:sparkline></x14:sparklines></x14:sparklineGroup></x14:sparklineGroups></ext>")


def extensions(book):
    book.sheets[0].extensions.append('<ext uri="{00000000-0000-0000-0000-000000000001}" xmlns:own="urn:own"><own:thing a="1">  kept  <!-- too -->'
                                     "<own:deep><![CDATA[<raw>]]></own:deep></own:thing></ext>")


def signature(book):
    book.defaults["sigs"] = "application/vnd.openxmlformats-package.digital-signature-origin"
    book.add("_xmlsignatures/origin.sigs", b"")
    book.add("_xmlsignatures/_rels/origin.sigs.rels", Book.rels([(f"{PKG}/relationships/digital-signature/signature", "sig1.xml", "")]))
    book.add("_xmlsignatures/sig1.xml", '<Signature xmlns="http://www.w3.org/2000/09/xmldsig#"/>',
             "application/vnd.openxmlformats-package.digital-signature-xmlsignature+xml")
    book.roots.append((f"{PKG}/relationships/digital-signature/origin", "_xmlsignatures/origin.sigs", ""))


def custom_xml(book):
    book.add("customXml/item1.xml", '<own xmlns="urn:own"><a/></own>')
    book.add("customXml/_rels/item1.xml.rels", Book.rels([(f"{REL}/customXmlProps", "itemProps1.xml", "")]))
    book.add("customXml/itemProps1.xml", '<ds:datastoreItem xmlns:ds="urn:ds" ds:itemID="{1}"/>', f"{DML}.customXmlProperties+xml")
    book.relate(f"{REL}/customXml", "../customXml/item1.xml")


def strict(book):
    def change(_, text):
        for loose, exact in STRICT.items():
            text = text.replace(loose, exact)
        return text
    book.texts.append(change)


def utf16(book):
    def change(name, text):
        if name not in ("xl/worksheets/sheet1.xml", "xl/sharedStrings.xml"):
            return text
        return ('<?xml version="1.0" encoding="UTF-16"?>' + text).encode("utf-16")
    book.texts.append(change)


def prefixes(book):
    def change(name, text):
        if name == "xl/worksheets/sheet1.xml":
            for tag in ("worksheet", "sheetViews", "sheetView", "sheetData", "row", "c", "v", "f", "pageMargins"):
                for end in (" ", ">", "/"):
                    text = text.replace(f"<{tag}{end}", f"<x:{tag}{end}").replace(f"</{tag}>", f"</x:{tag}>")
            text = text.replace(f'xmlns="{MAIN}"', f'xmlns="{MAIN}" xmlns:x="{MAIN}"', 1)
        return text
    book.texts.append(change)


def without_references(book):
    book.sheets[0].references = False


def missing_calculation_chain(book):
    book.relate(f"{REL}/calcChain", "calcChain.xml")
    book.types["xl/calcChain.xml"] = f"{SML}.calcChain+xml"


def dangling_relationships(book):
    book.sheets[0].relate(f"{REL}/printerSettings", "../printerSettings/gone.bin")
    book.relate(f"{REL}/theme", "theme/gone.xml")


def conditions(book):
    book.sheets[0].children["conditionalFormatting"] = (
        '<conditionalFormatting sqref="B1:B8"><cfRule type="dataBar" priority="2"><dataBar><cfvo type="min"/><cfvo type="max"/><color '
        'rgb="FF638EC6"/></dataBar><extLst><ext uri="{B025F937-C7B1-47D3-B67F-A62EFF666E3E}"><x14:id>{9}</x14:id></ext></extLst></cfRule>'
        "</conditionalFormatting>")
    book.sheets[0].children["dataValidations"] = ('<dataValidations count="1"><dataValidation type="list" sqref="C5:C6"><formula1>"a,b"</formula1>'
                                                  "</dataValidation></dataValidations>")
    book.sheets[0].extensions.append(
        '<ext uri="{78C0D931-6437-407d-A8EE-F0AAD7539E65}"><x14:conditionalFormattings><x14:conditionalFormatting xmlns:xm="urn:xm"><x14:cfRule '
        'type="dataBar" id="{9}"><x14:dataBar/></x14:cfRule><xm:sqref>B1:B8</xm:sqref></x14:conditionalFormatting></x14:conditionalFormattings></ext>')


def page_setup(book):
    book.defaults["bin"] = "application/vnd.openxmlformats-officedocument.spreadsheetml.printerSettings"
    book.add("xl/printerSettings/printerSettings1.bin", bytes(64))
    mine = book.sheets[0].relate(f"{REL}/printerSettings", "../printerSettings/printerSettings1.bin")
    book.sheets[0].children["pageSetup"] = f'<pageSetup orientation="landscape" r:id="{mine}"/>'
    book.sheets[0].children["headerFooter"] = "<headerFooter><oddHeader>&amp;L&amp;\"Arial,Bold\"model</oddHeader></headerFooter>"
    book.sheets[0].children["rowBreaks"] = '<rowBreaks count="1" manualBreakCount="1"><brk id="4" max="16383" man="1"/></rowBreaks>'


FEATURES = {feature.__name__: feature for feature in (
    chart, picture, pivot, slicer, table, threaded_comments, activex, vba, external_link, data_table, dynamic_arrays, sparklines,
    extensions, signature, custom_xml, strict, utf16, prefixes, without_references, missing_calculation_chain,
    dangling_relationships, conditions, page_setup)}


def package(features):
    book = Book()
    for name in FEATURES:  # in the table's order, whatever order they are asked for
        if name in features:
            FEATURES[name](book)
    return book.bytes()
