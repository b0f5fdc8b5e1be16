<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AddInertialSensorDlg</name>
    <message>
        <source>default channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>single channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This sensor is already added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a channel to scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted, could not get informations of dongle 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning USB...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted, error detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted, timeout of scanning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning USB aborted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning USB done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel aborted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channel done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channels aborted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning channels done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not add sensor </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sensor adding failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following sensors are not added:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>

 because the maximum number of bodies is reached.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddSenorDialog</name>
    <message>
        <source>Add Sensor(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds sensors to your system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scan &amp;mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the scan mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a channel to scan, only available if scan mode is set to single</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept all identified targets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accept a&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scanning channels %p%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the scanning progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the scanning process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept all identified and selected body geometries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalibrationProgressDialog</name>
    <message>
        <source>Calibration Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remaining time: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalibrationProgressDlg</name>
    <message>
        <source>cannot start calibration, waiting for sync signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is a %1 step calibration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Currently this calibration cannot be interrupted!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>calculating...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remaining time: %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibration Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChannelComboBox</name>
    <message>
        <source>Suggested channel, busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suggested channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy channel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControllerChecks</name>
    <message>
        <source>Could not get warmup status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControllerLink</name>
    <message>
        <source>the controller refused the request (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the controller refused the request (error %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the controller refused the request (error %1: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a number, got %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected %1 numbers, got %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the trace file %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>request of %1 bytes is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>request holds a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reply abandoned: nobody waited for its completion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no reply)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reply of %1 characters does not fit the %2-byte buffer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected &quot;%1 ...&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read %1 values at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command starts with &quot;norvane&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no command awaits its completion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is neither yes nor no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected &quot;norvane ok&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CountdownDialog</name>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6DOF filter settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select body to adjust the 6DOF filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the 6DOF filter of the body on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Select a 6DOF filter preset, or &lt;b&gt;custom&lt;/b&gt; to make your own settings.&lt;/p&gt;&lt;p&gt;A preset is a predefined set of strength, prediction and mode.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust 6DOF filter strength. Min. = 0.01, max. = 0.99</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pre&amp;diction [ms]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust 6DOF filter prediction in milliseconds; negative values smooth at the cost of latency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust 6DOF filter mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explain strength, prediction and mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of filter 6d presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset id available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d preset for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of filter 6d modes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode id available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d mode for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No wand is calibrated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No standard body is calibrated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6DOF filter for standard bodies not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6DOF filter for wands not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6DOF filter not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get calibration info of body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wand body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter info of body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to activate/deactivate filter 6d for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d strength for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d strength for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d prediction for body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d prediction for body %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterHelpClass</name>
    <message>
        <source>Help Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help for filter settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;
&lt;h3&gt;6DOF filter&lt;/h3&gt;
&lt;p&gt;The filter smooths the position and orientation that the controller reports for a body. A &lt;b&gt;preset&lt;/b&gt; sets strength, prediction and mode in one go; choose a custom preset to set them yourself. Every change takes effect at once.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Strength&lt;/b&gt; decides how much the filter smooths. Low values smooth little: the output follows every movement at once but keeps more jitter. High values smooth much: the output is calm but follows quick movements later.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Prediction&lt;/b&gt; extrapolates the output the given time ahead, to make up for the latency of tracking and rendering. Large positive values add jitter and cost precision. Negative values smooth the output further, at the price of more latency.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Mode&lt;/b&gt; is the elementary behaviour of the filter. The controller offers several; the hybrid ones only for a body that carries an inertial sensor.&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HybridBodyCalibrationDlg</name>
    <message>
        <source>Could not get calibration information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This controller does not support hybrid sensors - please update your controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hybrid Tracking is not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hybrid body is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking is not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No valid room calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get information of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to info inertial sensor is present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get active status of body: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get calibration status of body: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get description of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 body %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body is not optical calibrated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set hybrid calibration of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set body settings: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Cannot start hybrid calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Cannot start hybrid calibration. Maybe camera is disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Cannot activate hybrid calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not restore body settings: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not reset hybrid calibration status of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not stop tracking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start tracking</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HybridBodyCheck</name>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get informations of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HybridBodyDialog</name>
    <message>
        <source>Hybrid Body Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select body (standard bodies with inertial sensor)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number of the selected body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor of the selected inertial sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model of the selected inertial sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>During the Hybrid Body Calibration move the target as shown in the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open help dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the hybrid calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calibrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HybridBodyHelpDialog</name>
    <message>
        <source>Hybrid Body Calibration Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hybrid body calibration determines the relative orientation between</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the body calibration and the inertial sensor attached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to do a hybrid body calibration?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- move the body inside of the tracking volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- rotate the body during the whole calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>     as shown in the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requirements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- a valid room calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- a body calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HybridBodyResultCalibrationDlg</name>
    <message>
        <source>Error: Unable to get hybrid body sensor information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get sensor hybrid calibration result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set hybrid body calibration</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InProcessLink</name>
    <message>
        <source>simulated controller (default scenario)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>simulated controller (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no request awaits a reply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no reply within the time-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reply %1 ms late, beyond the time-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the controller closed the connection in the middle of a reply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reply longer than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InertialCalibrationDialog</name>
    <message>
        <source>Inertial Sensor Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warmup is running %p% ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrate all sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>calibrate all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept all identified targets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accept a&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Residual [deg]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrating %p%...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calibrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept all identified and selected body geometries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a help dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InertialCalibrationDlg</name>
    <message>
        <source>This controller does not support hybrid sensors - please update your controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hybrid tracking is not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hybrid body is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get calibration information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No valid room calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No active body with hybrid calibration found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all sensors have been warmed up, to get a valid calibration please start the warmup!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get warmup status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error ln751: Unable to get informations of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 body %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get information body %1 is active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get sensor of body: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get description of body: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get hybrid calibration of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start calibration of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get progress of calibration of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set get new residual of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get progress of calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not stop calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not accept new calirabtion of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get warmup status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set calibration of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InertialCalibrationHelpDlgClass</name>
    <message>
        <source>Inertial Sensor Calibration Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The inertial sensor calibration improves the sensor performance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It determines internal parameters of the sensor to avoid drifts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to do a inertial sensor calibration?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- put the bodies in the tracking volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- reduce the movement to a minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InertialCalibrationResultDlgClass</name>
    <message>
        <source>Calibration successful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inertial sensor calibration result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following sensors have been successfully calibrated:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrated inertial sensors with attached bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InertialSettingsDlg</name>
    <message>
        <source>Inertial Sensor Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Inertial Sensor Settings&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Keys for the navigation:&lt;/p&gt;&lt;table&gt;&lt;tr&gt;&lt;td&gt;- next/previous page:&lt;/td&gt;&lt;td&gt;F3&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;or:&lt;/td&gt;&lt;td/&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- page Settings:&lt;/td&gt;&lt;td&gt;1&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- page Hybrid Bodies:&lt;/td&gt;&lt;td&gt;2&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- page Tracking Frequency&lt;/td&gt;&lt;td&gt;3&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add sensors to your system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the wakeup mode for all connected sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;wakeup Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the frequency in Hz of the inertial sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(maximum; can be lower for specific sensor)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changing Channel...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scans and checks all channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scan available channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts or stops the warmup process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Warmup start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hybrid Bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set number of standard bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;number of bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available standard bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>selected bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>available inertial sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assign sensor to body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Select    </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete assignment sensor of body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust 6DOF filter for bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrate selected body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open inertial sensor calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;ertial Sensor Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrate hybrid body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hybrid Body Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Settings for tracking frequency:&lt;/span&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;as cameras: the output frequency is synchronous to the camera frequency (see the sync card settings)&lt;/li&gt;&lt;li&gt;as inertial sensor: the output frequency is synchronous to the frequency of the selected inertial sensor&lt;/li&gt;&lt;li&gt;custom frequency: the output frequency is set here&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Caution:&lt;/span&gt; avoid a tracking frequency higher than the measurement frequency of the available devices.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;as VEK cameras (see Synccard Settings)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as &amp;inertial sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>custom &amp;frequency (independent of cameras or sensors)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warmup start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This controller does not support hybrid sensors - please update your controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The configuration is locked: the inertial settings cannot be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hybrid tracking is not available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warmup stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set body description %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wakeup Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please scan available channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of dongles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get informations of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get firmware version of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get vendor description of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get model description of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get present status of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of available channels of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get radio channel of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get suggested radio channel of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get available channel of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cable connected:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get number of sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get informations of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get vendor model of inertial sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get body of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get associated transciever of sensor %1, transciever not connected?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get vendor description of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get model description of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get body description of body %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get informations of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get firmware version of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get sensor channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get battery status of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get temperature status of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get calibration status of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get present status of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of wakeup modes of inertial system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get wakeup modes of inertial system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get wakeup description of inertial system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get available wakeup mode of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get wakeup mode of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get available wakeup mode of sensor </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get informations of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to reach sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to reach sensor </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get wakeupmode of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set wakeup mode of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set sleep timeout of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get minimum maximum range of the inertial frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get the inertial frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get hybrid frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set frequency of inertial system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get frequency of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get radio channel of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set radio channel of dongle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set radio channel of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get radio channel of sensor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several sensors not available:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of body: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Retry if you want to try again to change the channel of the sensors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing Sensor Channel failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning available channels %p%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to execute scan transceiver channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get number of available dongle channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get activity of dongle: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start warmup of sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not stop warmup of sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete sensor %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set body of sensor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set standard number of bodies </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not delete sensor </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get assignment of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to delete assignment of sensor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InertialStatusBar</name>
    <message>
        <source>VEK InertialSensor Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displays whether VEK InertialSensor is available and the warming up status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warmup start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get number of sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not get warmup status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warmup is running %p%...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to get warmup status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start warmup of sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not stop warmup of sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warmup stop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InertialTrackingModule</name>
    <message>
        <source>GUI Inertial Tracking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;ertial Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the Inertial Sensor settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hybrid Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrate a Hybrid Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;ertial Sensor Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibrate a inertial sensor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>  (%1 times)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Norvane Tracking Controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round trips:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller traffic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the window and the modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Norvane Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the versions of the host, the controller and the modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to the %1: software %2, system type %3, firmware %4.%5.%6.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Features that need a newer controller stay off until its version is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No module found in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded %1 %2 from %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 handed out an empty element; skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 handed out a menu entry without action or menu; skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 handed out a status element without widget; skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 handed out an element of unknown type %2; skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still registered at shutdown: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;No modules loaded.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Norvane Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Norvane Host %1.%2.%3&lt;/h3&gt;&lt;p&gt;The desktop front end of the Norvane tracking controller.&lt;/p&gt;&lt;p&gt;Controller: %4, software %5&lt;/p&gt;&lt;p&gt;Modules:&lt;/p&gt;%6</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageHub</name>
    <message>
        <source>Ignored the registration of a message receiver without name or object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The message receiver &quot;%1&quot; was registered again; the newer one gets its messages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No receiver &quot;%1&quot; for the message from %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(unnamed)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleLoader</name>
    <message>
        <source>The plug-in folder %1 does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a module of this host: it offers &quot;%2&quot;, not &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded %1 %2 from %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Desktop front end of the Norvane tracking controller. Without --controller it runs a simulated controller in its own process.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the controller at &lt;host:port&gt; over TCP.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>host:port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the embedded simulator on the scenario &lt;file&gt; (JSON).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run the embedded simulator&apos;s clock &lt;factor&gt; times as fast.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load modules from &lt;folder&gt; (default: next to the program).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append every exchange with the controller to &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open every module menu entry in turn, save a picture of each dialog and of the window into &lt;folder&gt;, and quit. Runs offscreen when there is no display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--controller wants host:port (for example 127.0.0.1:4000), not &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--scenario and --speed are for the embedded simulator; a controller reached with --controller has its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--speed wants a factor above 0 and up to %1, not &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 wants a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read the controller&apos;s %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller&apos;s %1 &quot;%2&quot; is not of the form 1.21.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>software version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>system type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>firmware version</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SensorChannelCombo</name>
    <message>
        <source>Error: Unable to get radio channel of sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Unable to set radio channel of sensor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TcpLink</name>
    <message>
        <source>controller at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no connection to the controller at %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer within the time-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot connect to the controller at %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot send to the controller: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot send to the controller within the time-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reply longer than %1 bytes without a line end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the controller closed the connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the controller closed the connection in the middle of a reply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no reply within %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reply incomplete after %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read from the controller: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TourRunner</name>
    <message>
        <source>Cannot create the folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No module offers a menu entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; opened no window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>hybridBodyResultCalibrationDialog</name>
    <message>
        <source>Hybrid Body Calibration Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>residual [deg]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sensor delay [ms]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new hybrid rotation matrix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the new hybrid rotation matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept changes and close the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
