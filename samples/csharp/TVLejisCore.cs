// Talvex Core LEJIS Support, type library {458BB764-060D-401D-BF22-1AC883769CB8} 1.0.
// Generated from the type library by docs.sh; to change it, change the .idl files.
// What is Null elsewhere is DBNull.Value here.
using System;
using System.Runtime.InteropServices;

namespace TVLejisCore
{
    /// <summary>The error numbers of a failed submission. tvTransientError: the network, the server or the LEJIS core is down, and the same submission may succeed later. tvFatalError: the incident, the user or the settings are wrong, and trying again does not help. The description of the error is meant for the user.</summary>
    public enum tvSubmissionErrorCodes
    {
        tvTransientError = -1550879440,
        tvFatalError = -1550879439,
    }

    /// <summary>The first item has the number 1.</summary>
    [ComImport, Guid("5894C75A-C78E-4413-91F3-BA762FC26A9C"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ICollection
    {
        /// <summary>Appends a value or an object of any kind.</summary>
        [DispId(1)] void Add(object newItem);
        /// <summary>How many items the collection holds.</summary>
        int Count { [DispId(2)] get; }
        /// <summary>The item with this number, from 1 to Count; any other number raises 'There is no item 3: the collection holds 2.'</summary>
        object this[int index] { [DispId(0)] get; }
        /// <summary>Takes out the item with this number; the items after it move up. Another number raises the error of Item.</summary>
        [DispId(3)] void Remove(int index);
        /// <summary>What For Each walks; items added meanwhile are walked too.</summary>
        object _NewEnum { [DispId(-4)] [return: MarshalAs(UnmanagedType.IUnknown)] get; }
    }

    /// <summary>One deferred call. It lets go of its runnable and its observer when the runnable has run.</summary>
    [ComImport, Guid("125A013F-1818-4ACD-95D7-DA3D97DE2801"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IFuture
    {
        /// <summary>Runs runnable once, about 100 milliseconds later, on this thread, from its message loop; then tells the observer, which may be Nothing. The runnable may give the future its next work from inside of Run. An error raised by Run leaves the future incomplete and the observer untold. Without a runnable it raises 'runnable cannot be Nothing'. A future that is released before that never runs.</summary>
        [DispId(1)] void Execute(IRunnable runnable, IFutureObserver observer);
        /// <summary>Whether the work has run.</summary>
        bool Completed { [DispId(2)] get; }
    }

    /// <summary>Keeps deferred calls alive until they have run.</summary>
    [ComImport, Guid("F507C450-5DF6-42C0-98D7-57BD2EF3FC04"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IFutureManager
    {
        /// <summary>Runs runnable once, about 100 milliseconds later, on this thread, from its message loop. Without a runnable it raises 'runnable cannot be Nothing'. A pending call keeps its runnable and this manager alive. A call whose runnable raised an error is kept until the manager is released.</summary>
        [DispId(1)] void InvokeLater(IRunnable runnable);
    }

    /// <summary>Is told when deferred work has run.</summary>
    [ComImport, Guid("298C3D57-E048-4D69-9D54-819DA569925B"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IFutureObserver
    {
        /// <summary>theFuture has run its work.</summary>
        [DispId(1)] void FutureCompleted(IFuture theFuture);
    }

    /// <summary>The words to search for, written as lejis:AdHocInquiryArguments.</summary>
    [ComImport, Guid("0DFB5C2C-9DDA-411C-A9A8-EBEAE445844A"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisAdHocInquiryArguments
    {
        /// <summary>Free text; blanks alone are a text too. lejis:queryString.</summary>
        string QueryString { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>Whether the block holds anything to search by, blanks apart; an empty block is not sent.</summary>
        [DispId(2)] bool NotEmpty();
        /// <summary>The block as a new element of doc, not yet attached.</summary>
        [DispId(3)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the block from its element; what is missing in it becomes empty.</summary>
        [DispId(4)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>Independent of the user's regional settings.</summary>
    [ComImport, Guid("41289FA2-883E-4897-9710-28D425DDACD0"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisCommon
    {
        /// <summary>The date as yyyy-mm-dd, for example 2007-03-09.</summary>
        [DispId(1)] string LejisFormatDate(DateTime theDate);
        /// <summary>The time of day as hh:nn:ss on the 24-hour clock, for example 14:05:00.</summary>
        [DispId(2)] string LejisFormatTime(DateTime theDate);
    }

    /// <summary>The system that contributes a submission, written as lejis:ContributingSystem.</summary>
    [ComImport, Guid("4966BB18-DB7A-43B2-AD89-7E9DD2EB9C05"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisContributingSystem
    {
        /// <summary>The maker of the system. ext:companyName.</summary>
        string CompanyName { [DispId(1)] get; }
        /// <summary>The name of the system. ext:systemName.</summary>
        string SystemName { [DispId(2)] get; }
        /// <summary>The version of this library: major, minor and revision, for example 3.1.27. ext:systemVersion.</summary>
        string SystemVersion { [DispId(3)] get; }
        /// <summary>The description as a new lejis:ContributingSystem element of doc, not yet attached.</summary>
        [DispId(4)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the three texts from a lejis:ContributingSystem element; a missing child gives an empty text.</summary>
        [DispId(5)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>SubmitIncident does the same and returns the warnings.</summary>
    [ComImport, Guid("C34C6D28-8348-4AAE-9F57-A1EB862E0331"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisIncidentFormatter
    {
        /// <summary>What the last Format changed, one text for each change; a list obtained earlier keeps its texts. None where Format raised an error. A call by name with what is no incident is refused before Format begins: the list stays.</summary>
        ICollection Warnings { [DispId(1)] get; }
        /// <summary>Whether the last Format changed anything.</summary>
        bool HasWarnings { [DispId(2)] get; }
        /// <summary>A copy of incident, shaped to the limits of LEJIS; incident itself stays as it is.</summary>
        [DispId(3)] ILejisIncidentIndexCard Format(ILejisIncidentIndexCard incident);
    }

    /// <summary>The summary of one incident, written as lejis:RMSIncidentIndexCard.</summary>
    [ComImport, Guid("DA39A86B-3EA4-4D9A-9ED8-D0B8BC4F464F"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisIncidentIndexCard
    {
        /// <summary>The submitting agency. j:SubmissionSubmitter.Organization/j:OrganizationName; at most 75 characters reach LEJIS.</summary>
        string OrganizationName { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The agency's ORI, exactly nine characters, else the incident is refused. card:LejisIndexUid/j:OrganizationORIID/j:ID.</summary>
        string OrganizationORI { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The agency's incident number, 1 to 30 characters, else the incident is refused. With the ORI it identifies the incident in the index. card:LejisIndexUid/j:ActivityID/j:ID.</summary>
        string ActivityID { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>Free caveat text. j:CaveatText; at most 200 characters reach LEJIS.</summary>
        string CaveatText { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The four-digit NCIC offense code of the main charge; for a code that NCIC does not have, or none, nothing is written. j:ChargeNCICCode.</summary>
        string ChargeNCICCode { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>The main charge in words. j:ChargeDescriptionText; at most 200 characters reach LEJIS.</summary>
        string ChargeDescriptionText { [DispId(6)] get; [DispId(6)] set; }
        /// <summary>Whether the incident itself is flagged for caution; ext:CautionIndicatorFlag is written from HasCaution.</summary>
        bool CautionIndicator { [DispId(7)] get; [DispId(7)] set; }
        /// <summary>When the card is submitted; without it the incident is refused. Set its Value. j:SubmissionSubmittedDate.</summary>
        INullableDate SubmittedDate { [DispId(8)] get; }
        /// <summary>When the incident happened. Set its Value. j:ActivityDate and j:ActivityTime.</summary>
        INullableDate ActivityDateTime { [DispId(9)] get; }
        /// <summary>Where the incident happened. Fill it in place. j:IncidentLocation.</summary>
        ILejisStreetAddress Location { [DispId(10)] get; }
        /// <summary>The persons, each a LejisPersonIndexCard. Add to it in place. card:RMSPersonIndexCards.</summary>
        ICollection PersonIndexCards { [DispId(11)] get; }
        /// <summary>The vehicles, each a LejisVehicleIndexCard. Add to it in place. card:RMSVehicleIndexCards.</summary>
        ICollection VehicleIndexCards { [DispId(12)] get; }
        /// <summary>The property, each item a LejisPropertyIndexCard. Add to it in place. card:RMSPropertyIndexCards.</summary>
        ICollection PropertyIndexCards { [DispId(13)] get; }
        /// <summary>The card as a new lejis:RMSIncidentIndexCard element of doc, not yet attached.</summary>
        [DispId(14)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the card from a lejis:RMSIncidentIndexCard element. Raises 'elem cannot be Nothing' when the identifiers or the submitter are missing; bad persons, property and vehicles are kept as far as they could be read.</summary>
        [DispId(15)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
        /// <summary>Whether the incident or any of its cards is flagged for caution.</summary>
        [DispId(16)] bool HasCaution();
    }

    /// <summary>SubmitIncident does the same to the formatted copy and raises the first error.</summary>
    [ComImport, Guid("CEC80CCD-E11F-445A-A940-87C92B285D4D"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisIncidentValidator
    {
        /// <summary>The errors of the last Validate, as texts in the order of the checks; a list obtained earlier keeps its texts. Where Validate raised an error, those found until then. A call by name with what is no incident is refused before Validate begins: the list stays.</summary>
        ICollection Errors { [DispId(1)] get; }
        /// <summary>Whether the last Validate found errors.</summary>
        bool HasErrors { [DispId(2)] get; }
        /// <summary>Checks incident without changing it. Returns True when errors were found, False when it may be submitted.</summary>
        [DispId(3)] bool Validate(ILejisIncidentIndexCard incident);
    }

    /// <summary>How to search, written as lejis:InquiryControls.</summary>
    [ComImport, Guid("7FD58B4E-FDF3-4F76-BA03-C667818A3439"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisInquiryControls
    {
        /// <summary>Passed on to LEJIS as it is, True or False; False at first. lejis:irrinfo, always written.</summary>
        bool IrrInfo { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The most incidents to return; 0 or less, 0 at first, sets no limit. lejis:maxincidents.</summary>
        int MaxIncidents { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The agencies to leave out, each the text of an ORI. Add to it in place. lejis:excludedOriid.</summary>
        ICollection ExcludedORIIDs { [DispId(3)] get; }
        /// <summary>Always True: the controls are always sent.</summary>
        [DispId(4)] bool NotEmpty();
        /// <summary>The controls as a new lejis:InquiryControls element of doc, not yet attached.</summary>
        [DispId(5)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the controls from a lejis:InquiryControls element. A lejis:maxincidents that is missing or no number raises the type mismatch.</summary>
        [DispId(6)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>The answer to a search, read from lejis:LEJISIndexInquiryResponse.</summary>
    [ComImport, Guid("FCCB3ABC-BF2F-4C62-A2BF-E803C8515142"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisInquiryResponse
    {
        /// <summary>The incidents found, each a LejisIncidentIndexCard.</summary>
        ICollection IncidentIndexCards { [DispId(1)] get; }
        /// <summary>How many incidents the server says it found: the number with which lejis:incidentcount begins, halves rounded to the even neighbour; of several numbers the first, and 0 for a text that begins with none. lejis:incidentcount.</summary>
        int IncidentCount { [DispId(2)] get; }
        /// <summary>Reads a lejis:LEJISIndexInquiryResponse element; cards of an earlier read are dropped.</summary>
        [DispId(3)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
        /// <summary>Reads the first lejis:LEJISIndexInquiryResponse anywhere in doc; a document without one raises an error.</summary>
        [DispId(4)] void FromXmlDocument([MarshalAs(UnmanagedType.IDispatch)] object doc);
    }

    /// <summary>One person of an incident, written as card:RMSPersonIndexCards.</summary>
    [ComImport, Guid("CDD9D54C-E9F1-402F-AB19-B290F15A1875"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisPersonIndexCard
    {
        /// <summary>The agency with jurisdiction over the incident. j:IncidentJurisdictionalOrganization/j:OrganizationName; at most 75 characters reach LEJIS.</summary>
        string OrganizationName { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The first name. j:PersonGivenName; at most 28 characters reach LEJIS.</summary>
        string GivenName { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The middle name. j:PersonMiddleName; at most 28 characters reach LEJIS.</summary>
        string MiddleName { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The last name. j:PersonSurName; at most 28 characters reach LEJIS.</summary>
        string SurName { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The social security number: nine digits without hyphens, or empty; another length is refused. j:PersonSSNID/j:ID.</summary>
        string SSN { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>The driver's licence number. j:PersonDriverLicenseID/j:ID, written only together with the state.</summary>
        string DriversLicense { [DispId(6)] get; [DispId(6)] set; }
        /// <summary>The NCIC state code of the licence. j:PersonDriverLicenseID/j:IDJurisdictionCode.ncicLSTA, written only together with the number.</summary>
        string DriversLicenseState { [DispId(7)] get; [DispId(7)] set; }
        /// <summary>The NCIC sex code: M, F, U or empty; anything else is sent as U. j:PersonSexCode.</summary>
        string SexNCIC { [DispId(8)] get; [DispId(8)] set; }
        /// <summary>The NCIC race code: A, B, I, U, W or empty; anything else is sent as U. j:PersonRaceCode.</summary>
        string RaceNCIC { [DispId(9)] get; [DispId(9)] set; }
        /// <summary>The four-digit NCIC offense code of the person's charge; for a code that NCIC does not have, or none, nothing is written. j:ChargeNCICCode.</summary>
        string ChargeNCICCode { [DispId(10)] get; [DispId(10)] set; }
        /// <summary>The charge in words. j:ChargeDescriptionText; at most 200 characters reach LEJIS.</summary>
        string ChargeDescriptionText { [DispId(11)] get; [DispId(11)] set; }
        /// <summary>The caution code of the person. j:SubjectCautionInformationCode.</summary>
        string SubjectCautionInformationCode { [DispId(12)] get; [DispId(12)] set; }
        /// <summary>The text that goes with the caution code; more than 200 characters are refused. j:SubjectCautionInformationCaveat.</summary>
        string SubjectCautionInformationCaveat { [DispId(13)] get; [DispId(13)] set; }
        /// <summary>Free caveat text. j:CaveatText; at most 200 characters reach LEJIS. It is written and never read back.</summary>
        string CaveatText { [DispId(14)] get; [DispId(14)] set; }
        /// <summary>The person's role in the incident, for example SUSPECT. ext:PersonInvolvement.</summary>
        string Involvement { [DispId(15)] get; [DispId(15)] set; }
        /// <summary>Whether the person is flagged for caution. ext:CautionIndicatorFlag.</summary>
        bool CautionIndicator { [DispId(16)] get; [DispId(16)] set; }
        /// <summary>The residence. Fill it in place. j:Residence.</summary>
        ILejisStreetAddress address { [DispId(17)] get; }
        /// <summary>The date of birth, not in the future. Set its Value. j:PersonBirthDate.</summary>
        INullableDate BirthDate { [DispId(18)] get; }
        /// <summary>The height in the NCIC unit, feet and inches, for example 510; Null at first. Set its Value. j:PersonHeightMeasure.</summary>
        INullableInteger Height { [DispId(19)] get; }
        /// <summary>The weight in pounds, from 0 to 999, else it is left out; Null at first. Set its Value. j:PersonWeightMeasure.</summary>
        INullableInteger Weight { [DispId(20)] get; }
        /// <summary>The card as a new card:RMSPersonIndexCards element of doc, not yet attached.</summary>
        [DispId(21)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Resets the card and fills it from a card:RMSPersonIndexCards element. A birth date that is no date raises 'Not a valid date.'</summary>
        [DispId(22)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>One item of property of an incident, written as card:RMSPropertyIndexCards.</summary>
    [ComImport, Guid("D94AE4BF-DD46-4CE5-AD68-B9EEC678BC77"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisPropertyIndexCard
    {
        /// <summary>The NIBRS property category code. j:PropertyCategoryCode.nibrsPropertyCategory.</summary>
        string NibrsCategoryCode { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The kind of property in words. j:PropertyTypeText; at most 35 characters reach LEJIS.</summary>
        string Category { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The make or brand. j:PropertyMakeName; at most 35 characters reach LEJIS.</summary>
        string Make { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The model. j:PropertyModelName; at most 35 characters reach LEJIS.</summary>
        string Model { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The serial number. j:PropertySerialID/j:ID.</summary>
        string SerialID { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>Whether the item is flagged for caution. ext:CautionIndicatorFlag.</summary>
        bool CautionIndicator { [DispId(6)] get; [DispId(6)] set; }
        /// <summary>Free caveat text. j:CaveatText.</summary>
        string CaveatText { [DispId(7)] get; [DispId(7)] set; }
        /// <summary>Empties every field and clears the flag.</summary>
        [DispId(8)] void LoadDefaults();
        /// <summary>The card as a new card:RMSPropertyIndexCards element of doc, not yet attached.</summary>
        [DispId(9)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Resets the card and fills it from a card:RMSPropertyIndexCards element; a bad flag is passed over.</summary>
        [DispId(10)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>A search of the LEJIS index, written as inq:LEJISIndexInquiry. All blocks that hold something must apply.</summary>
    [ComImport, Guid("CC17C459-85CD-4CCC-94E7-7E81BB896DB3"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisSearchRequest
    {
        /// <summary>The person to search for. Fill it in place.</summary>
        IPersonInquiryArguments personArguments { [DispId(1)] get; }
        /// <summary>The place to search for. Fill it in place.</summary>
        ILocationInquiryArguments LocationArguments { [DispId(2)] get; }
        /// <summary>The property to search for. Fill it in place.</summary>
        IPropertyInquiryArguments PropertyArguments { [DispId(3)] get; }
        /// <summary>The vehicle to search for. Fill it in place.</summary>
        IVehicleInquiryArguments VehicleArguments { [DispId(4)] get; }
        /// <summary>The words to search for. Fill it in place.</summary>
        ILejisAdHocInquiryArguments AdHocInquiryArguments { [DispId(5)] get; }
        /// <summary>How to search. Fill it in place.</summary>
        ILejisInquiryControls InquiryControls { [DispId(6)] get; }
        /// <summary>Makes inq:LEJISIndexInquiry the root of doc, which must have none yet, and returns it.</summary>
        [DispId(7)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>A new document with inq:LEJISIndexInquiry as its root.</summary>
        [DispId(8)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlDocument();
        /// <summary>Fills the blocks whose elements elem holds; the others stay as they are.</summary>
        [DispId(9)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>The outcome of a search is one event, raised from the message loop.</summary>
    [ComImport, Guid("804D8880-6163-40A0-8E87-8256F8C57B0C"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisSearchWebService
    {
        /// <summary>Whether each request is checked against the schemas of the service's WSDL, read from URL followed by ?wsdl, before it is sent; False at first. A request that fails the check is not sent and raises ConfigurationError.</summary>
        bool ValidateSchema { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The address of the search service of the LEJIS Interface, http://HOST:PORT/lejis-core-Rev01/services/search. Empty at first; an address that is none raises ConfigurationError.</summary>
        string URL { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The user's JNET User ID, written as wsse:UsernameToken/wsse:Username. It is put into the request as it stands, markup included.</summary>
        string Username { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The incidents of the last successful search; Nothing before the first.</summary>
        ICollection results { [DispId(4)] get; }
        /// <summary>Sends request and returns at once. Exactly one event follows, from the message loop, or before Search returns when the request could not be sent. No error is raised.</summary>
        [DispId(5)] void Search(ILejisSearchRequest request);
        /// <summary>What the HTTP request calls when its state changes.</summary>
        [DispId(0)] void OnReadyStateChange();
    }

    /// <summary>A street address, written as j:LocationAddress.</summary>
    [ComImport, Guid("2DCE8B22-270F-4A80-A444-5C0AB3E6DF44"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisStreetAddress
    {
        /// <summary>The whole street line. j:LocationStreet/j:StreetFullText; at most 45 characters reach LEJIS.</summary>
        string StreetFullText { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The street name. j:LocationStreet/j:StreetName; at most 30 characters reach LEJIS.</summary>
        string StreetName { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The street type, for example AVE. j:LocationStreet/j:StreetTypeText; at most 10 characters reach LEJIS.</summary>
        string StreetType { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The direction word of the street. j:LocationStreet/j:StreetPredirectionalText; at most 9 characters reach LEJIS.</summary>
        string StreetDirection { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The street extension. j:LocationStreet/j:StreetExtensionText; at most 10 characters reach LEJIS.</summary>
        string StreetExtension { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>The city. j:LocationCityName.</summary>
        string City { [DispId(6)] get; [DispId(6)] set; }
        /// <summary>The NCIC state code. j:LocationStateCode.ncicLSTA, left out when blank.</summary>
        string State { [DispId(7)] get; [DispId(7)] set; }
        /// <summary>The postal code: five characters or empty; nine are sent as their first five, another length is refused. j:LocationPostalCodeID/j:ID, left out when blank.</summary>
        string ZIP { [DispId(8)] get; [DispId(8)] set; }
        /// <summary>The house number; one of more than six characters is left out. Set its Value. j:LocationStreet/j:StreetNumberText.</summary>
        INullableLong StreetNumber { [DispId(9)] get; }
        /// <summary>The address as a new j:LocationAddress element of doc, not yet attached.</summary>
        [DispId(10)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Resets the address and fills it from the j:LocationAddress below elem, which is the element that contains it.</summary>
        [DispId(11)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>The payload of a submission, written as lejis:SubmitRmsIndex.</summary>
    [ComImport, Guid("883FFF2D-3237-48A6-A95F-BBA3308262B8"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisSubmissionDocument
    {
        /// <summary>The incidents to submit, each a LejisIncidentIndexCard. Add to it in place.</summary>
        ICollection IncidentIndexCards { [DispId(1)] get; }
        /// <summary>The system that contributes them.</summary>
        ILejisContributingSystem ContributingSystem { [DispId(2)] get; }
        /// <summary>Makes lejis:SubmitRmsIndex the root of doc, which must have none yet, and returns it. An item that is no LejisIncidentIndexCard raises the type mismatch; the incidents before it are then written.</summary>
        [DispId(3)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>A new document with lejis:SubmitRmsIndex as its root.</summary>
        [DispId(4)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlDocument();
    }

    /// <summary>Submits incidents to the LEJIS index and withdraws them.</summary>
    [ComImport, Guid("7B64A6A8-6BC3-40DF-B156-13F06751D8A5"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisSubmissionWebService
    {
        /// <summary>Whether each request is checked against the schemas of the service's WSDL, read from URL followed by ?wsdl, before it is sent; False at first. A request that fails the check is not sent and raises tvFatalError.</summary>
        bool ValidateSchema { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The address of the submission service of the LEJIS Interface, http://HOST:PORT/lejis-core-Rev01/services/submission. Empty at first; an address that is none raises tvTransientError.</summary>
        string URL { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>Kept for the client; no time limit is applied. 0 at first.</summary>
        int Timeout { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>Shapes and checks a copy of incident, sends it, and waits for the answer without a time limit. Returns the warnings, each a text, none when nothing was changed. Raises tvTransientError or tvFatalError with a message for the user.</summary>
        [DispId(4)] ICollection SubmitIncident(ILejisIncidentIndexCard incident);
        /// <summary>Withdraws incident: sends OrganizationName, OrganizationORI, ActivityID and SubmittedDate alone, unchecked, and waits for the answer. Raises tvTransientError or tvFatalError with a message for the user.</summary>
        [DispId(5)] void DeleteIncident(ILejisIncidentIndexCard incident);
        /// <summary>What the HTTP request calls when its state changes.</summary>
        [DispId(0)] void OnReadyStateChange();
    }

    /// <summary>One vehicle of an incident, written as card:RMSVehicleIndexCards.</summary>
    [ComImport, Guid("83828A76-8E33-456F-B893-FAADC3C65726"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILejisVehicleIndexCard
    {
        /// <summary>The make. ext:VehicleMakeText.</summary>
        string Make { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The model. j:VehicleModelCodeText; at most 30 characters reach LEJIS.</summary>
        string Model { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The body style. ext:VehicleStyleText.</summary>
        string Style { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The primary colour. j:VehicleColorPrimaryText; at most 30 characters reach LEJIS.</summary>
        string Color { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The plate number. j:VehicleLicensePlateID/j:ID, written only together with the state.</summary>
        string LicensePlate { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>The NCIC state code of the plate. j:VehicleLicensePlateID/j:IDJurisdictionCode.ncicLSTA, written only together with the number.</summary>
        string LicensePlateState { [DispId(6)] get; [DispId(6)] set; }
        /// <summary>The vehicle identification number. j:VehicleID/j:ID.</summary>
        string VIN { [DispId(7)] get; [DispId(7)] set; }
        /// <summary>Whether the vehicle is flagged for caution. ext:CautionIndicatorFlag.</summary>
        bool CautionIndicator { [DispId(8)] get; [DispId(8)] set; }
        /// <summary>Free caveat text. j:CaveatText.</summary>
        string CaveatText { [DispId(9)] get; [DispId(9)] set; }
        /// <summary>The model year; one before 1900 is left out. Set its Value. Reading a card puts a new holder in its place. j:VehicleModelYearDate.</summary>
        INullableInteger Year { [DispId(10)] get; }
        /// <summary>The card as a new card:RMSVehicleIndexCards element of doc, not yet attached.</summary>
        [DispId(11)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Resets the card and fills it from a card:RMSVehicleIndexCards element; a bad year or flag is passed over.</summary>
        [DispId(12)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>The place to search for, written as inq:LocationInquiryArguments.</summary>
    [ComImport, Guid("B75C41F5-F4CA-46E2-9DFA-88872A43A62D"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ILocationInquiryArguments
    {
        /// <summary>The whole street line. j:StreetFullText.</summary>
        string StreetFullText { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The street name. j:StreetName.</summary>
        string StreetName { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The city. j:LocationCityName.</summary>
        string City { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The NCIC state code. j:LocationStateCode.ncicLSTA.</summary>
        string State { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The postal code. j:LocationPostalCodeID/j:ID.</summary>
        string ZIP { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>Whether the block holds anything to search by, blanks apart; an empty block is not sent.</summary>
        [DispId(6)] bool NotEmpty();
        /// <summary>The block as a new element of doc, not yet attached.</summary>
        [DispId(7)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the block from its element; what is missing in it becomes empty.</summary>
        [DispId(8)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>The value is read and set by the default member.</summary>
    [ComImport, Guid("E6AEF0CE-4815-44AF-B883-C36A1E1A8D62"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface INullableDate
    {
        /// <summary>Null, or a date and time; Null at first. Takes Null, a date (VT_DATE), or a text (VT_BSTR) that is a date under the user's regional settings. Another text raises 'Not a valid date.'; every other type, numbers and Empty included, raises the error for an invalid argument with the text Cannot assign 'Integer'  to NullableDate, where Integer is the name of the type. The value then stays as it was.</summary>
        object Value { [DispId(0)] get; [DispId(0)] set; }
    }

    /// <summary>The value is read and set by the default member.</summary>
    [ComImport, Guid("27FA28EE-97B7-41AA-9588-D0CD078A04C9"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface INullableInteger
    {
        /// <summary>Null, or an integer from -32768 to 32767; Null at first. Takes Null and the numbers Byte (VT_UI1), Integer (VT_I2), Long (VT_I4), Single (VT_R4) and Double (VT_R8); fractions are rounded, halves to the even neighbour. A number out of range becomes 0 without an error. Every other type, such as a text, a Boolean, a Currency, Empty or another integer type, raises the error for an invalid argument with the text Cannot assign 'String'  to NullableInteger, where String is the name of the type, and the value stays as it was.</summary>
        object Value { [DispId(0)] get; [DispId(0)] set; }
    }

    /// <summary>The value is read and set by the default member.</summary>
    [ComImport, Guid("B78951F9-2286-4A0C-9D15-A9EF349404D2"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface INullableLong
    {
        /// <summary>Null, or an integer from -2147483648 to 2147483647; Null at first. Takes Null and the numbers Byte (VT_UI1), Integer (VT_I2), Long (VT_I4), Single (VT_R4) and Double (VT_R8); fractions are rounded, halves to the even neighbour. A number out of range becomes 0 without an error. Every other type, such as a text, a Boolean, a Currency, Empty or another integer type, raises the error for an invalid argument with the text Cannot assign 'String'  to NullableLong, where String is the name of the type, and the value stays as it was.</summary>
        object Value { [DispId(0)] get; [DispId(0)] set; }
    }

    /// <summary>The person to search for, written as inq:PersonInquiryArguments.</summary>
    [ComImport, Guid("10F803AB-4FC1-4B57-B5B7-300BF8D19A9C"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IPersonInquiryArguments
    {
        /// <summary>The first name. j:PersonGivenName, written even when empty.</summary>
        string GivenName { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The middle name. j:PersonMiddleName, written even when empty.</summary>
        string MiddleName { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The last name. j:PersonSurName, written even when empty.</summary>
        string SurName { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The social security number, nine digits without hyphens. j:PersonSSNID/j:ID.</summary>
        string SSN { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The driver's licence number. j:PersonDriverLicenseID/j:ID.</summary>
        string DriversLicense { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>The NCIC state code of the licence. j:PersonDriverLicenseID/j:IDJurisdictionCode.ncicLSTA.</summary>
        string DriversLicenseState { [DispId(6)] get; [DispId(6)] set; }
        /// <summary>The NCIC sex code: M, F or U. j:PersonSexCode.</summary>
        string SexNCIC { [DispId(7)] get; [DispId(7)] set; }
        /// <summary>The NCIC race code: A, B, I, U or W. j:PersonRaceCode.</summary>
        string RaceNCIC { [DispId(8)] get; [DispId(8)] set; }
        /// <summary>Whether the block holds anything to search by, blanks apart; an empty block is not sent.</summary>
        [DispId(9)] bool NotEmpty();
        /// <summary>The date of birth. Set its Value. j:PersonBirthDate.</summary>
        INullableDate BirthDate { [DispId(10)] get; }
        /// <summary>The height in the NCIC unit, feet and inches, for example 510. Set its Value. j:PersonHeightMeasure.</summary>
        INullableInteger Height { [DispId(11)] get; }
        /// <summary>The weight in pounds. Set its Value. j:PersonWeightMeasure.</summary>
        INullableInteger Weight { [DispId(12)] get; }
        /// <summary>The block as a new inq:PersonInquiryArguments element of doc, not yet attached.</summary>
        [DispId(13)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the block from an inq:PersonInquiryArguments element; what is missing in it becomes empty.</summary>
        [DispId(14)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>The property to search for, written as inq:PropertyInquiryArguments.</summary>
    [ComImport, Guid("4BFA8899-E77B-4ADF-B1AC-C5A7F6FC69D1"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IPropertyInquiryArguments
    {
        /// <summary>The kind of property in words. j:PropertyCategoryText.</summary>
        string Category { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The make or brand. j:PropertyMakeName.</summary>
        string Make { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The model. j:PropertyModelName.</summary>
        string Model { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The serial number; LEJIS refuses a search for property without it. j:PropertySerialID/j:ID.</summary>
        string SerialNumber { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>Whether the block holds anything to search by, blanks apart; an empty block is not sent.</summary>
        [DispId(5)] bool NotEmpty();
        /// <summary>The block as a new element of doc, not yet attached.</summary>
        [DispId(6)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the block from its element; what is missing in it becomes empty.</summary>
        [DispId(7)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>Work that can be run later.</summary>
    [ComImport, Guid("7A708079-7BAB-45DD-84A8-9918536CC644"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IRunnable
    {
        /// <summary>Does the work.</summary>
        [DispId(1)] void Run();
    }

    /// <summary>A SOAP 1.1 envelope.</summary>
    [ComImport, Guid("32D46331-79D7-4E09-A8AF-648D5D8994AB"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISOAPEnvelope
    {
        /// <summary>The user name of the WS-Security header; empty means no header. It is written and never read back.</summary>
        string Username { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The markup of the soap:Body element with its own tags, as read by FromXmlElement.</summary>
        string Body { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>Whether the body holds a soap:Fault. Raises an error when Body is empty or cannot be parsed.</summary>
        [DispId(3)] bool IsFault();
        /// <summary>The text of soap:Fault/faultstring, or an empty text. Raises an error when Body is empty or cannot be parsed.</summary>
        [DispId(4)] string FaultMessage();
        /// <summary>The text of soap:Fault/faultcode, or an empty text. Raises an error when Body is empty or cannot be parsed.</summary>
        [DispId(5)] string FaultCode();
        /// <summary>A new document parsed from Body; it has no root when Body cannot be parsed.</summary>
        [DispId(6)] [return: MarshalAs(UnmanagedType.IDispatch)] object BodyXml();
        /// <summary>The envelope as a new soap:Envelope element of doc, not yet attached. Body is written as text, so markup in it is escaped.</summary>
        [DispId(7)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Reads a soap:Envelope element; without a soap:Body, Body becomes empty.</summary>
        [DispId(8)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
        /// <summary>Reads the soap:Envelope that is the root of doc; another root raises an error.</summary>
        [DispId(9)] void FromXmlDocument([MarshalAs(UnmanagedType.IDispatch)] object doc);
    }

    /// <summary>TalvexSuite.SuiteEnvironment: where the suite keeps things.</summary>
    [ComImport, Guid("4AB9446D-B62C-46FB-92DD-A67F47183CDE"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISuiteEnvironment
    {
        /// <summary>The folders of the suite.</summary>
        ISuiteFolders Folders { [DispId(1)] get; }
    }

    /// <summary>The folders of the suite.</summary>
    [ComImport, Guid("9DA2F5B8-3065-492B-81F9-E4E734BB1F96"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISuiteFolders
    {
        /// <summary>The folder for debug dumps, with or without a backslash at its end.</summary>
        string Diagnostics { [DispId(1)] get; }
    }

    /// <summary>TalvexSuite.SuiteServices: what the library needs while it works.</summary>
    [ComImport, Guid("F946F1CD-700B-4580-AC3C-4A8F1DB78AE8"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISuiteServices
    {
        /// <summary>The COM error number for a small code; 5 stands for an invalid argument.</summary>
        [DispId(1)] int ErrorNumber(int kind);
        /// <summary>Lets the host process pending work and returns promptly. An error raised here ends the wait that called it.</summary>
        [DispId(2)] void Yield();
    }

    /// <summary>TalvexSuite.SuiteTimer: a timer on the thread that made it.</summary>
    [ComImport, Guid("1D2CCB60-E701-4114-A52F-FB1F834B7D9C"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISuiteTimer
    {
        /// <summary>Whether the timer runs. Setting it to False stops it at once.</summary>
        bool Enabled { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The time between two ticks, in milliseconds.</summary>
        int Interval { [DispId(2)] get; [DispId(2)] set; }
    }

    /// <summary>Tries a search without a user interface of its own.</summary>
    [ComImport, Guid("9AAB1108-02D8-4629-8493-2D062F9C4D54"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ITestSearch
    {
        /// <summary>Searches the LEJIS Interface on this machine, port 8080, as the user sUserId, and waits for the outcome without a time limit. Returns the incidents found; a failure, also of a search that cannot be sent, is shown in a message box that is modal to the task, and Nothing returned. A search started inside of the wait for another waits for its own outcome.</summary>
        [DispId(1)] ICollection Search(string sUserId, ILejisSearchRequest request);
    }

    /// <summary>The vehicle to search for, written as inq:VehicleInquiryArguments.</summary>
    [ComImport, Guid("9E48370C-47AD-4E5B-94A0-86DA6A2A405A"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IVehicleInquiryArguments
    {
        /// <summary>The make. ext:VehicleMakeText, written even when empty.</summary>
        string Make { [DispId(1)] get; [DispId(1)] set; }
        /// <summary>The model. j:VehicleModelCodeText, written even when empty.</summary>
        string Model { [DispId(2)] get; [DispId(2)] set; }
        /// <summary>The body style. ext:VehicleStyleText, written even when empty.</summary>
        string Style { [DispId(3)] get; [DispId(3)] set; }
        /// <summary>The primary colour. j:VehicleColorPrimaryText, written even when empty.</summary>
        string Color { [DispId(4)] get; [DispId(4)] set; }
        /// <summary>The plate number. j:VehicleLicensePlateID/j:ID.</summary>
        string LicensePlate { [DispId(5)] get; [DispId(5)] set; }
        /// <summary>The NCIC state code of the plate. j:VehicleLicensePlateID/j:IDJurisdictionCode.ncicLSTA.</summary>
        string LicensePlateState { [DispId(6)] get; [DispId(6)] set; }
        /// <summary>The vehicle identification number. j:VehicleID/j:ID.</summary>
        string VIN { [DispId(7)] get; [DispId(7)] set; }
        /// <summary>The model year. Set its Value. j:VehicleModelYearDate.</summary>
        INullableInteger Year { [DispId(8)] get; }
        /// <summary>Whether the block holds anything to search by, blanks apart; an empty block is not sent.</summary>
        [DispId(9)] bool NotEmpty();
        /// <summary>The block as a new element of doc, not yet attached.</summary>
        [DispId(10)] [return: MarshalAs(UnmanagedType.IDispatch)] object ToXmlElement([MarshalAs(UnmanagedType.IDispatch)] object doc);
        /// <summary>Fills the block from its element; what is missing in it becomes empty.</summary>
        [DispId(11)] void FromXmlElement([MarshalAs(UnmanagedType.IDispatch)] object elem);
    }

    /// <summary>What a TalvexSuite.SuiteTimer raises.</summary>
    [ComImport, Guid("0403F953-ACE8-4AC2-B840-4736B9FD82BA"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface _ISuiteTimerEvents
    {
        /// <summary>The interval has passed.</summary>
        [DispId(1)] void Elapsed();
    }

    /// <summary>What LejisSearchWebService raises: one event for each search.</summary>
    [ComImport, Guid("23838A68-74C7-4A5C-9530-7C5F571A5D78"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface _LejisSearchWebServiceEvents
    {
        /// <summary>The incidents found, each a LejisIncidentIndexCard; none when nothing was found.</summary>
        [DispId(1)] void SearchCompleted(ICollection results);
        /// <summary>Declared for clients; never raised.</summary>
        [DispId(2)] void SearchFailed(string reason, int status);
        /// <summary>The service or the user is not configured correctly; trying again does not help. reasonMessage is meant for the user.</summary>
        [DispId(3)] void ConfigurationError(string reasonMessage);
        /// <summary>The network or the server failed; try again later. reasonMessage is meant for the user.</summary>
        [DispId(4)] void NetworkError(string reasonMessage);
        /// <summary>The service refused the search or answered something unexpected. reasonMessage is meant for the user.</summary>
        [DispId(5)] void ServiceError(string reasonMessage);
    }

    /// <summary>What LejisSubmissionWebService raises when a submission was sent without waiting, which no public method does: SubmitIncident and DeleteIncident wait, and raise errors.</summary>
    [ComImport, Guid("757F7650-5115-44A2-8EF5-1E23278B4036"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface _LejisSubmissionWebServiceEvents
    {
        /// <summary>The submission has been taken.</summary>
        [DispId(1)] void SubmissionCompleted();
        /// <summary>The service is not configured correctly. reasonMessage is meant for the user.</summary>
        [DispId(2)] void ConfigurationError(string reasonMessage);
        /// <summary>The network or the server failed; try again later. reasonMessage is meant for the user.</summary>
        [DispId(3)] void NetworkError(string reasonMessage);
        /// <summary>Declared for clients; never raised.</summary>
        [DispId(4)] void ValidationError(string reasonMessage);
        /// <summary>The service refused the submission or answered something unexpected. reasonMessage is meant for the user.</summary>
        [DispId(5)] void ServiceError(string reasonMessage);
    }

    [ComImport, Guid("1E3A411C-0148-4F07-9D22-C328C7332B23"), ClassInterface(ClassInterfaceType.None)]
    public class NullableDateClass
    {
    }

    /// <summary>Holds a date and time, or nothing.</summary>
    [ComImport, Guid("E6AEF0CE-4815-44AF-B883-C36A1E1A8D62"), CoClass(typeof(NullableDateClass))]
    public interface NullableDate : INullableDate
    {
    }

    [ComImport, Guid("54AE281F-B416-42FC-9C3E-DF3DBA0F45AC"), ClassInterface(ClassInterfaceType.None)]
    public class NullableIntegerClass
    {
    }

    /// <summary>Holds a 16-bit integer, or nothing.</summary>
    [ComImport, Guid("27FA28EE-97B7-41AA-9588-D0CD078A04C9"), CoClass(typeof(NullableIntegerClass))]
    public interface NullableInteger : INullableInteger
    {
    }

    [ComImport, Guid("F0539C5D-1E32-4898-B4C6-2F54D4C36E72"), ClassInterface(ClassInterfaceType.None)]
    public class NullableLongClass
    {
    }

    /// <summary>Holds a 32-bit integer, or nothing.</summary>
    [ComImport, Guid("B78951F9-2286-4A0C-9D15-A9EF349404D2"), CoClass(typeof(NullableLongClass))]
    public interface NullableLong : INullableLong
    {
    }

    [ComImport, Guid("6F789E06-6E09-4F62-901C-82FB316BA1A3"), ClassInterface(ClassInterfaceType.None)]
    public class LejisCommonClass
    {
    }

    /// <summary>Writes dates and times as LEJIS expects them.</summary>
    [ComImport, Guid("41289FA2-883E-4897-9710-28D425DDACD0"), CoClass(typeof(LejisCommonClass))]
    public interface LejisCommon : ILejisCommon
    {
    }

    [ComImport, Guid("DE43E11E-65B2-4FEA-92BC-AB11B3CD05A0"), ClassInterface(ClassInterfaceType.None)]
    public class FutureClass
    {
    }

    /// <summary>Runs one piece of work later on the same thread.</summary>
    [ComImport, Guid("125A013F-1818-4ACD-95D7-DA3D97DE2801"), CoClass(typeof(FutureClass))]
    public interface Future : IFuture
    {
    }

    [ComImport, Guid("05651A70-B1FA-4BBD-8F7D-25C555E2DEA5"), ClassInterface(ClassInterfaceType.None)]
    public class FutureManagerClass
    {
    }

    /// <summary>Runs pieces of work later on the same thread and keeps them alive until then.</summary>
    [ComImport, Guid("F507C450-5DF6-42C0-98D7-57BD2EF3FC04"), CoClass(typeof(FutureManagerClass))]
    public interface FutureManager : IFutureManager
    {
    }

    [ComImport, Guid("B2A1000A-F863-426C-BF0F-6FF93B7E75F8"), ClassInterface(ClassInterfaceType.None)]
    public class LejisStreetAddressClass
    {
    }

    /// <summary>The street address of an incident or of a person.</summary>
    [ComImport, Guid("2DCE8B22-270F-4A80-A444-5C0AB3E6DF44"), CoClass(typeof(LejisStreetAddressClass))]
    public interface LejisStreetAddress : ILejisStreetAddress
    {
    }

    [ComImport, Guid("C7E000DF-D599-4198-804A-6A5BD2D2399B"), ClassInterface(ClassInterfaceType.None)]
    public class LejisPersonIndexCardClass
    {
    }

    /// <summary>One person of an incident, with the role that the person has in it.</summary>
    [ComImport, Guid("CDD9D54C-E9F1-402F-AB19-B290F15A1875"), CoClass(typeof(LejisPersonIndexCardClass))]
    public interface LejisPersonIndexCard : ILejisPersonIndexCard
    {
    }

    [ComImport, Guid("FF94BC2D-A66B-4C70-825F-716CC3E4CB3E"), ClassInterface(ClassInterfaceType.None)]
    public class LejisVehicleIndexCardClass
    {
    }

    /// <summary>One vehicle of an incident.</summary>
    [ComImport, Guid("83828A76-8E33-456F-B893-FAADC3C65726"), CoClass(typeof(LejisVehicleIndexCardClass))]
    public interface LejisVehicleIndexCard : ILejisVehicleIndexCard
    {
    }

    [ComImport, Guid("C9557478-C3F4-42C0-8451-70D8170BE68E"), ClassInterface(ClassInterfaceType.None)]
    public class LejisPropertyIndexCardClass
    {
    }

    /// <summary>One item of property of an incident.</summary>
    [ComImport, Guid("D94AE4BF-DD46-4CE5-AD68-B9EEC678BC77"), CoClass(typeof(LejisPropertyIndexCardClass))]
    public interface LejisPropertyIndexCard : ILejisPropertyIndexCard
    {
    }

    [ComImport, Guid("CC19343B-F510-4020-99EE-BD6F5A48DE3F"), ClassInterface(ClassInterfaceType.None)]
    public class LejisIncidentIndexCardClass
    {
    }

    /// <summary>The summary of one incident: identity, dates, location, charge, persons, vehicles and property.</summary>
    [ComImport, Guid("DA39A86B-3EA4-4D9A-9ED8-D0B8BC4F464F"), CoClass(typeof(LejisIncidentIndexCardClass))]
    public interface LejisIncidentIndexCard : ILejisIncidentIndexCard
    {
    }

    [ComImport, Guid("DFB5BD79-A8AD-4C04-A960-05186005A2E5"), ClassInterface(ClassInterfaceType.None)]
    public class LejisContributingSystemClass
    {
    }

    /// <summary>Describes the system that contributes a submission: the suite and this library's version.</summary>
    [ComImport, Guid("4966BB18-DB7A-43B2-AD89-7E9DD2EB9C05"), CoClass(typeof(LejisContributingSystemClass))]
    public interface LejisContributingSystem : ILejisContributingSystem
    {
    }

    [ComImport, Guid("AA5E437D-2DBA-4ECF-83F9-974C55582EE7"), ClassInterface(ClassInterfaceType.None)]
    public class LejisSubmissionDocumentClass
    {
    }

    /// <summary>The payload of a submission: incidents and the system that contributes them.</summary>
    [ComImport, Guid("883FFF2D-3237-48A6-A95F-BBA3308262B8"), CoClass(typeof(LejisSubmissionDocumentClass))]
    public interface LejisSubmissionDocument : ILejisSubmissionDocument
    {
    }

    [ComImport, Guid("7DA6662B-50E4-4716-99A5-F0B2644F821C"), ClassInterface(ClassInterfaceType.None)]
    public class LejisIncidentValidatorClass
    {
    }

    /// <summary>Decides whether an incident may be submitted, and says why not.</summary>
    [ComImport, Guid("CEC80CCD-E11F-445A-A940-87C92B285D4D"), CoClass(typeof(LejisIncidentValidatorClass))]
    public interface LejisIncidentValidator : ILejisIncidentValidator
    {
    }

    [ComImport, Guid("0FC29DE2-6349-4152-A3B4-CA82AA85C07A"), ClassInterface(ClassInterfaceType.None)]
    public class LejisIncidentFormatterClass
    {
    }

    /// <summary>Shapes a copy of an incident to the limits of LEJIS and reports each change as a warning.</summary>
    [ComImport, Guid("C34C6D28-8348-4AAE-9F57-A1EB862E0331"), CoClass(typeof(LejisIncidentFormatterClass))]
    public interface LejisIncidentFormatter : ILejisIncidentFormatter
    {
    }

    [ComImport, Guid("5A14E874-32AA-460C-B518-210E80F6B121"), ClassInterface(ClassInterfaceType.None)]
    public class PersonInquiryArgumentsClass
    {
    }

    /// <summary>The person to search for.</summary>
    [ComImport, Guid("10F803AB-4FC1-4B57-B5B7-300BF8D19A9C"), CoClass(typeof(PersonInquiryArgumentsClass))]
    public interface PersonInquiryArguments : IPersonInquiryArguments
    {
    }

    [ComImport, Guid("E78D4B80-7F6E-452E-8F4D-B654A4538D7A"), ClassInterface(ClassInterfaceType.None)]
    public class LocationInquiryArgumentsClass
    {
    }

    /// <summary>The place to search for.</summary>
    [ComImport, Guid("B75C41F5-F4CA-46E2-9DFA-88872A43A62D"), CoClass(typeof(LocationInquiryArgumentsClass))]
    public interface LocationInquiryArguments : ILocationInquiryArguments
    {
    }

    [ComImport, Guid("5450A8F1-6677-45DA-A0D0-172B3C14F4AF"), ClassInterface(ClassInterfaceType.None)]
    public class PropertyInquiryArgumentsClass
    {
    }

    /// <summary>The property to search for.</summary>
    [ComImport, Guid("4BFA8899-E77B-4ADF-B1AC-C5A7F6FC69D1"), CoClass(typeof(PropertyInquiryArgumentsClass))]
    public interface PropertyInquiryArguments : IPropertyInquiryArguments
    {
    }

    [ComImport, Guid("46D28AFC-5AE8-41E3-A92A-5F01C8D1F526"), ClassInterface(ClassInterfaceType.None)]
    public class VehicleInquiryArgumentsClass
    {
    }

    /// <summary>The vehicle to search for.</summary>
    [ComImport, Guid("9E48370C-47AD-4E5B-94A0-86DA6A2A405A"), CoClass(typeof(VehicleInquiryArgumentsClass))]
    public interface VehicleInquiryArguments : IVehicleInquiryArguments
    {
    }

    [ComImport, Guid("311C56C9-57F3-4E56-A91D-27010991567B"), ClassInterface(ClassInterfaceType.None)]
    public class LejisAdHocInquiryArgumentsClass
    {
    }

    /// <summary>The words to search for.</summary>
    [ComImport, Guid("0DFB5C2C-9DDA-411C-A9A8-EBEAE445844A"), CoClass(typeof(LejisAdHocInquiryArgumentsClass))]
    public interface LejisAdHocInquiryArguments : ILejisAdHocInquiryArguments
    {
    }

    [ComImport, Guid("A79076A9-3DDB-4A71-9637-8249975930C5"), ClassInterface(ClassInterfaceType.None)]
    public class LejisInquiryControlsClass
    {
    }

    /// <summary>How to search: limits and agencies to leave out.</summary>
    [ComImport, Guid("7FD58B4E-FDF3-4F76-BA03-C667818A3439"), CoClass(typeof(LejisInquiryControlsClass))]
    public interface LejisInquiryControls : ILejisInquiryControls
    {
    }

    [ComImport, Guid("5D1673DF-D6FC-4897-BCCB-F9654ADBC6B1"), ClassInterface(ClassInterfaceType.None)]
    public class LejisSearchRequestClass
    {
    }

    /// <summary>What to search the LEJIS index for.</summary>
    [ComImport, Guid("CC17C459-85CD-4CCC-94E7-7E81BB896DB3"), CoClass(typeof(LejisSearchRequestClass))]
    public interface LejisSearchRequest : ILejisSearchRequest
    {
    }

    [ComImport, Guid("62B2AE25-CAE8-458A-B01D-27A4A9F1A14D"), ClassInterface(ClassInterfaceType.None)]
    public class LejisInquiryResponseClass
    {
    }

    /// <summary>The answer to a search: incidents, and the server's count of them.</summary>
    [ComImport, Guid("FCCB3ABC-BF2F-4C62-A2BF-E803C8515142"), CoClass(typeof(LejisInquiryResponseClass))]
    public interface LejisInquiryResponse : ILejisInquiryResponse
    {
    }

    [ComImport, Guid("C098F9BC-1A2F-4427-BEBF-6D36A3F4932D"), ClassInterface(ClassInterfaceType.None)]
    public class SOAPEnvelopeClass
    {
    }

    /// <summary>Reads SOAP 1.1 answers and writes envelopes.</summary>
    [ComImport, Guid("32D46331-79D7-4E09-A8AF-648D5D8994AB"), CoClass(typeof(SOAPEnvelopeClass))]
    public interface SOAPEnvelope : ISOAPEnvelope
    {
    }

    [ComImport, Guid("045F7D1C-C9DB-4AE1-B9A3-DA3A01F08F90"), ClassInterface(ClassInterfaceType.None), ComSourceInterfaces(typeof(_LejisSubmissionWebServiceEvents))]
    public class LejisSubmissionWebServiceClass
    {
    }

    /// <summary>Sends incidents to the LEJIS index through the LEJIS Interface.</summary>
    [ComImport, Guid("7B64A6A8-6BC3-40DF-B156-13F06751D8A5"), CoClass(typeof(LejisSubmissionWebServiceClass))]
    public interface LejisSubmissionWebService : ILejisSubmissionWebService
    {
    }

    [ComImport, Guid("37CFC4C4-5A1C-4C8D-883D-DB58887EE18F"), ClassInterface(ClassInterfaceType.None), ComSourceInterfaces(typeof(_LejisSearchWebServiceEvents))]
    public class LejisSearchWebServiceClass
    {
    }

    /// <summary>Searches the LEJIS index through the LEJIS Interface.</summary>
    [ComImport, Guid("804D8880-6163-40A0-8E87-8256F8C57B0C"), CoClass(typeof(LejisSearchWebServiceClass))]
    public interface LejisSearchWebService : ILejisSearchWebService
    {
    }

    [ComImport, Guid("9747C2D7-D4ED-4E2E-AB27-ECC7DDC2DB4E"), ClassInterface(ClassInterfaceType.None)]
    public class TestSearchClass
    {
    }

    /// <summary>Runs one search and waits for it.</summary>
    [ComImport, Guid("9AAB1108-02D8-4629-8493-2D062F9C4D54"), CoClass(typeof(TestSearchClass))]
    public interface TestSearch : ITestSearch
    {
    }
}
