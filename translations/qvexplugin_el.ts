<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Η αποθήκευση απέτυχε.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Ζωντανά</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Επιστροφή στη ζωντανή εικόνα</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Φωτο</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Λήψη φωτογραφίας</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Συνεχής
λήψη</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Λήψη σειράς φωτογραφιών</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Βίντεο</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Εγγραφή βίντεο με ήχο</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Διακοπή</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Τέλος της εγγραφής</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Λίστα</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Εμφάνιση των λήψεων</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Αλλαγή των ρυθμίσεων</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Τερματισμός του προγράμματος</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Αποδοχή</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Διατήρηση αυτής της φωτογραφίας</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ξανά</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Απόρριψη αυτής της φωτογραφίας</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Έναρξη</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Αναπαραγωγή του βίντεο</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Παύση του βίντεο</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Προβολή</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Εμφάνιση των επιλεγμένων</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Βίντεο /
    Φωτο</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Λίστα των φωτογραφιών</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Φωτο /
    Βίντεο</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Λίστα των βίντεο</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Επιστροφή σε όλες τις εικόνες</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Επικόλληση</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Επικόλληση στον πίνακα</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Δεν βρέθηκε κάμερα ούτε μικρόφωνο.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Δεν βρέθηκε μικρόφωνο.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Δεν βρέθηκε κάμερα.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Η κάμερα δεν είναι διαθέσιμη. Βεβαιωθείτε ότι η συσκευή είναι σωστά συνδεδεμένη. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Στιγμιότυπο</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Γίνεται εγγραφή</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Η εγγραφή τελείωσε</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Η φωτογραφία τραβήχτηκε</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Ζωντανή εικόνα</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Ό,τι βλέπει τώρα η κάμερα</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>ΖΩΝΤΑΝΑ</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Δεν υποστηρίζεται</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Δεν βρέθηκε κάμερα.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Η κάμερα δεν είναι διαθέσιμη. Βεβαιωθείτε ότι η συσκευή είναι σωστά συνδεδεμένη. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Η κάμερα και το μικρόφωνο δεν είναι διαθέσιμα. Βεβαιωθείτε ότι η συσκευή είναι σωστά συνδεδεμένη. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Το μικρόφωνο δεν είναι διαθέσιμο. Βεβαιωθείτε ότι η συσκευή είναι σωστά συνδεδεμένη.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Βίντεο</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Αναπαράγει ένα εγγεγραμμένο βίντεο</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Εικόνες που λήφθηκαν</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Επιλέξτε έως εννέα φωτογραφίες ή ένα βίντεο</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Δεν μπορείτε να επιλέξετε 10 ή περισσότερα.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Φωτο</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Μια φωτογραφία που λήφθηκε</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Εμφανίζει τη φωτογραφία όσο το δυνατόν μεγαλύτερη</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Επιστρέφει σε όλες τις επιλεγμένες φωτογραφίες</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Μεγέθυνση αυτής της φωτογραφίας</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Επιστροφή σε όλες τις φωτογραφίες</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Ο ελεύθερος χώρος στον δίσκο δεν επαρκεί.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Η λήψη διακόπτεται. Εξασφαλίστε ελεύθερο χώρο. </translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>Θέλετε να αποθηκεύσετε τις φωτογραφίες και τα βίντεο;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ναι</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Επιλέξτε συσκευή:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Κάμερα</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Χρονοδιακόπτης:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>δευτ.</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Συνεχής λήψη:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Λήψεις</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Επιβεβαίωση εικόνας:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Ανάλυση:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Προεπιλεγμένη θέση</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Άλλη θέση</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Φάκελος αποθήκευσης:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Χρονοδιακόπτης</translation>
    </message>
    <message>
        <source>second</source>
        <translation>δευτ.</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Συνεχής λήψη</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Λήψεις</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Επιβεβαίωση εικόνας</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Ανάλυση</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Προεπιλεγμένη θέση</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Άλλη θέση</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Φάκελος αποθήκευσης</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Καθορίστε τη θέση αποθήκευσης.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Η διαδρομή δεν είναι έγκυρη.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Χρονοδιακόπτης, χρόνος εγγραφής ή χρόνος αναπαραγωγής</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> δευτ. έως τη λήψη</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 δευτ. έως τη λήψη  </translation>
    </message>
</context>
</TS>
